#include <QSerialPort>
#include <QtTest>

#include "support/pty_pair.h"
#include "ui/serial_error_text.h"

using serial_error_text::describe;
using serial_error_text::facts;
using serial_error_text::PortFacts;

Q_DECLARE_METATYPE(PortFacts)

class TestSerialErrorText : public QObject
{
    Q_OBJECT

private slots:
    void saysWhyAndWhatToDo_data()
    {
        QTest::addColumn<QSerialPort::SerialPortError>("error");
        QTest::addColumn<PortFacts>("facts");
        QTest::addColumn<QString>("expected"); // part of the text; empty: no text

        const QString port = QStringLiteral("/dev/ttyUSB0");
        const QString group = QStringLiteral("dialout");
        const QString user = QStringLiteral("ann");
        const PortFacts there{port, 123456, true, true, group, user};
        const PortFacts forbidden{port, 115200, true, false, group, user};
        const PortFacts forbiddenToAll{port, 115200, true, false, {}, user};
        const PortFacts gone{port, 115200, false, false, {}, user};
        const auto row = [](const char *name, QSerialPort::SerialPortError error, const PortFacts &known,
                            const char *expected) {
            QTest::newRow(name) << error << known << QString::fromLatin1(expected);
        };
        row("no error", QSerialPort::NoError, there, "");
        row("busy", QSerialPort::PermissionError, there, "Another program uses /dev/ttyUSB0. Close it");
        row("forbidden", QSerialPort::PermissionError, forbidden, "sudo usermod -aG dialout ann");
        row("forbidden to all", QSerialPort::PermissionError, forbiddenToAll, "administrator");
        row("not found", QSerialPort::DeviceNotFoundError, gone, "is not there. Check the cable");
        row("gone between choosing and opening", QSerialPort::PermissionError, gone, "is not there");
        row("unplugged", QSerialPort::ResourceError, gone, "unplugged");
        row("unplugged, file still there", QSerialPort::ResourceError, there, "unplugged");
        row("settings", QSerialPort::UnsupportedOperationError, there, "does not support 123456 baud");
        row("other", QSerialPort::UnknownError, there, "error 8");
    }
    void saysWhyAndWhatToDo()
    {
        QFETCH(QSerialPort::SerialPortError, error);
        QFETCH(PortFacts, facts);
        QFETCH(QString, expected);
        const QString text = describe(error, facts);
        QCOMPARE(text.isEmpty(), expected.isEmpty());
        QVERIFY2(text.contains(expected), qPrintable(text));
    }

    // What the toolkit reports for real ports must lead to the right sentence.
    void fitsRealErrors()
    {
        QSerialPort missing(QStringLiteral("/dev/ttyNotPluggedIn"));
        QVERIFY(!missing.open(QIODevice::ReadWrite));
        QVERIFY(describe(missing.error(), facts(missing.portName(), 115200)).contains(QLatin1String("is not there")));

        PtyPair pty;
        QSerialPort first(pty.path());
        QVERIFY(first.open(QIODevice::ReadWrite));
        QSerialPort second(pty.path());
        QVERIFY(!second.open(QIODevice::ReadWrite));
        const QString busy = describe(second.error(), facts(pty.path(), 115200));
        QVERIFY2(busy.contains(QLatin1String("Another program")), qPrintable(busy));

        QSignalSpy errors(&first, &QSerialPort::errorOccurred);
        pty.unplug();
        QTRY_VERIFY(!errors.isEmpty());
        const QString lost = describe(first.error(), facts(pty.path(), 115200));
        QVERIFY2(lost.contains(QLatin1String("unplugged")), qPrintable(lost));
    }

    void putsNoForeignTextIntoTheCommand()
    {
        const QByteArray before = qgetenv("USER");
        const auto restore = qScopeGuard([&before] { qputenv("USER", before); });
        qputenv("USER", "ann; rm -rf ~");
        QCOMPARE(facts(QStringLiteral("/dev/null"), 9600).user, QStringLiteral("$USER"));
        qputenv("USER", "ann");
        QCOMPARE(facts(QStringLiteral("/dev/null"), 9600).user, QStringLiteral("ann"));
    }
};

QTEST_GUILESS_MAIN(TestSerialErrorText)
#include "tst_serial_error_text.moc"
