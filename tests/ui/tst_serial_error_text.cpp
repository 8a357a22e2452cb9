#include <QSerialPort>
#include <QtTest>

#include "link/source_failure.h"
#include "support/pty_pair.h"
#include "ui/serial_error_text.h"
#include "ui/source_error_text.h"

using serial_error_text::describe;
using serial_error_text::facts;
using serial_error_text::PortFacts;

class TestSerialErrorText : public QObject
{
    Q_OBJECT

private slots:
    void saysWhyAndWhatToDo()
    {
        const QString port = QStringLiteral("/dev/ttyUSB0");
        const QString user = QStringLiteral("ann");
        const PortFacts there{port, 123456, true, true, QStringLiteral("dialout"), user};
        const PortFacts forbidden{port, 9600, true, false, QStringLiteral("dialout"), user};
        const PortFacts forbiddenToAll{port, 9600, true, false, {}, user};
        const PortFacts gone{port, 9600, false, false, {}, user};
        const auto says = [](QSerialPort::SerialPortError error, const PortFacts &known, const char *part) {
            return describe(error, known).contains(QLatin1String(part));
        };
        QCOMPARE(describe(QSerialPort::NoError, there), QString());
        QVERIFY(says(QSerialPort::PermissionError, forbidden, "sudo usermod -aG dialout ann"));
        QVERIFY(says(QSerialPort::PermissionError, forbiddenToAll, "administrator"));
        QVERIFY(says(QSerialPort::PermissionError, gone, "is not there")); // went between choosing and opening
        QVERIFY(says(QSerialPort::ResourceError, there, "unplugged"));     // the file can outlive the device
        QVERIFY(says(QSerialPort::UnsupportedOperationError, there, "does not support 123456 baud"));
        QVERIFY(says(QSerialPort::UnknownError, there, "error 8"));
    }

    // What the toolkit reports for real ports must lead to the right sentence.
    void fitsRealErrors()
    {
        const auto text = [](const QSerialPort &port) { return describe(port.error(), facts(port.portName(), 9600)); };
        QSerialPort missing(QStringLiteral("/dev/ttyNotPluggedIn"));
        QVERIFY(!missing.open(QIODevice::ReadWrite));
        QVERIFY2(text(missing).contains(QLatin1String("is not there. Check the cable")), qPrintable(text(missing)));

        PtyPair pty;
        QSerialPort first(pty.path());
        QVERIFY(first.open(QIODevice::ReadWrite));
        QSerialPort second(pty.path());
        QVERIFY(!second.open(QIODevice::ReadWrite));
        QVERIFY2(text(second).contains(QLatin1String("Another program uses pts/")), qPrintable(text(second)));

        QSignalSpy errors(&first, &QSerialPort::errorOccurred);
        pty.unplug();
        QTRY_VERIFY(!errors.isEmpty());
        QVERIFY2(text(first).contains(QLatin1String("unplugged")), qPrintable(text(first)));
    }

    // Every fault of a source has a sentence of its own that names the source or gives its own words.
    void explainsEverySource()
    {
        QStringList told;
        const SourceAddress address{SourceKind::Tcp, QStringLiteral("lab-pc"), 4001, 9600};
        for (int fault = int(SourceFault::HostNotFound); fault <= int(SourceFault::File); ++fault) {
            const QString text = source_error_text::describe(
                {address, SourceFault(fault), QStringLiteral("own words"), QSerialPort::NoError, true});
            QVERIFY2(text.contains(QLatin1String("lab-pc")) || text.contains(QLatin1String("own words")),
                     qPrintable(QString::number(fault)));
            QVERIFY2(!text.contains(u'%') && !told.contains(text), qPrintable(text));
            told.append(text);
        }
        QCOMPARE(source_error_text::describe({}), QString());
    }

    void putsNoForeignTextIntoTheCommand()
    {
        const auto restore = qScopeGuard([before = qgetenv("USER")] { qputenv("USER", before); });
        qputenv("USER", "ann; rm -rf ~");
        QCOMPARE(facts(QStringLiteral("/dev/null"), 9600).user, QLatin1String("$USER"));
        qputenv("USER", "ann");
        QCOMPARE(facts(QStringLiteral("/dev/null"), 9600).user, QLatin1String("ann"));
    }
};

QTEST_GUILESS_MAIN(TestSerialErrorText)
#include "tst_serial_error_text.moc"
