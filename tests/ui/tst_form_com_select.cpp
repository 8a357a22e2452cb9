#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include "app/settings_keys.h"
#include "support/pty_pair.h"
#include "ui/form_com_select.h"

using port_choice::PortEntry;

namespace {

PortEntry usbPort(const QString &path, const QString &serialNumber)
{
    return {path, QStringLiteral("USB UART"), QStringLiteral("Maker"), serialNumber, 0x0403, 0x6001, true};
}

/// The dialog with a list of ports that the test plugs and unplugs.
struct Bench
{
    QList<PortEntry> ports;
    form_com_select dialog{nullptr, [this] { return ports; }};
    QTreeWidget *tree = dialog.findChild<QTreeWidget *>();
    QLineEdit *path = dialog.findChild<QLineEdit *>(QStringLiteral("LE_path"));
    QComboBox *baud = dialog.findChild<QComboBox *>();
    QPushButton *open = dialog.findChild<QPushButton *>(QStringLiteral("BTN_open"));

    explicit Bench(const QList<PortEntry> &plugged = {}) : ports(plugged) {}
    void show()
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QApplication::setActiveWindow(&dialog); // there may be no window manager to do it
    }
    void type(QWidget *field, const QString &text)
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }
    QString selected() const { return tree->currentItem() != nullptr ? tree->currentItem()->text(0) : QString(); }
    QString problem(const char *label) const { return dialog.findChild<QLabel *>(QLatin1String(label))->text(); }
};

} // namespace

class TestFormComSelect : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void acceptsATypedPathAndRemembersIt()
    {
        PtyPair pty;
        {
            Bench bench;
            bench.show();
            QCOMPARE(bench.dialog.findChild<QStackedWidget *>()->currentIndex(), 1); // says that nothing is plugged in
            QVERIFY(!bench.open->isEnabled());
            QVERIFY(!bench.open->toolTip().isEmpty());
            QTest::keyClicks(bench.dialog.focusWidget(), pty.path()); // the field has the focus
            bench.type(bench.baud, QStringLiteral("250000"));
            QTest::keyClick(bench.dialog.focusWidget(), Qt::Key_Return);
            QCOMPARE(bench.dialog.result(), int(QDialog::Accepted));
            QCOMPARE(bench.dialog.portName(), pty.path());
            QCOMPARE(bench.dialog.baudRate(), 250000);
        }
        {
            Bench bench({usbPort(QStringLiteral("/dev/ttyUSB0"), QStringLiteral("A"))});
            bench.show();
            QCOMPARE(bench.path->text(), pty.path());
            QCOMPARE(bench.baud->currentText(), QStringLiteral("250000"));
            QVERIFY(bench.problem("LBL_pathProblem").isEmpty());
            QCOMPARE(bench.selected(), QString());
        }
        pty.unplug();
        Bench bench;
        bench.show();
        QCOMPARE(bench.path->text(), pty.path());
        QVERIFY(bench.problem("LBL_pathProblem").contains(QLatin1String("is not there")));
    }

    void findsTheDeviceAtItsNewPlace()
    {
        const PortEntry other = usbPort(QStringLiteral("/dev/ttyUSB0"), QStringLiteral("B"));
        {
            Bench bench({usbPort(QStringLiteral("/dev/ttyUSB0"), QStringLiteral("A")),
                         usbPort(QStringLiteral("/dev/ttyUSB1"), QStringLiteral("C"))});
            bench.show();
            QTest::keyClick(bench.tree, Qt::Key_Return);
            QCOMPARE(bench.dialog.portName(), QStringLiteral("/dev/ttyUSB0"));
        }
        Bench bench({other});
        bench.show();
        QCOMPARE(bench.selected(), other.path);
        // It is plugged in while the dialog waits, at another place: it is what the user is waiting for.
        bench.ports.append(usbPort(QStringLiteral("/dev/ttyUSB1"), QStringLiteral("A")));
        QTRY_COMPARE(bench.selected(), QStringLiteral("/dev/ttyUSB1"));
        QCOMPARE(bench.path->text(), QStringLiteral("/dev/ttyUSB1"));
    }

    void followsPluggingAndKeepsTheChoice()
    {
        Bench bench;
        for (int i = 0; i < 60; ++i)
            bench.ports.append(usbPort(QStringLiteral("/dev/ttyUSB%1").arg(i), QString::number(i)));
        bench.show();
        const auto choose = [&bench](int row) { bench.tree->setCurrentItem(bench.tree->topLevelItem(row)); };
        choose(40);
        const int scrolled = bench.tree->verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        QTreeWidgetItem *chosen = bench.tree->currentItem();
        QSignalSpy changes(bench.tree->model(), &QAbstractItemModel::dataChanged);

        bench.ports.removeAt(50);
        bench.ports.append(usbPort(QStringLiteral("/dev/ttyUSB99"), QStringLiteral("99")));
        QTRY_COMPARE(bench.tree->topLevelItem(59)->text(0), QStringLiteral("/dev/ttyUSB99"));
        QCOMPARE(bench.tree->topLevelItemCount(), 60);
        QCOMPARE(bench.tree->currentItem(), chosen);
        QCOMPARE(bench.tree->verticalScrollBar()->value(), scrolled);
        for (const QList<QVariant> &change : changes) // other rows were not even redrawn
            QVERIFY(change.at(0).toModelIndex().row() >= 50);

        // The chosen one goes and comes again.
        bench.ports.removeAt(40);
        QTRY_COMPARE(bench.tree->topLevelItemCount(), 59);
        QCOMPARE(bench.selected(), QString());
        QCOMPARE(bench.path->text(), QStringLiteral("/dev/ttyUSB40"));
        QVERIFY(bench.problem("LBL_pathProblem").contains(QLatin1String("is not there")));
        bench.ports.insert(40, usbPort(QStringLiteral("/dev/ttyUSB40"), QStringLiteral("40")));
        QTRY_COMPARE(bench.selected(), QStringLiteral("/dev/ttyUSB40"));
        QVERIFY(bench.problem("LBL_pathProblem").isEmpty());

        bench.ports.clear();
        QTRY_COMPARE(bench.tree->topLevelItemCount(), 0);
    }

    void refusesBadInputWithAReason_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("baud");
        QTest::addColumn<bool>("opens");

        QTest::newRow("good") << QStringLiteral("/dev/null") << QStringLiteral("115200") << true;
        QTest::newRow("missing device may come") << QStringLiteral("/dev/nothing") << QStringLiteral("115200") << true;
        QTest::newRow("folder") << QStringLiteral("/dev") << QStringLiteral("115200") << false;
        QTest::newRow("blank path") << QStringLiteral("  ") << QStringLiteral("115200") << false;
        QTest::newRow("baud") << QStringLiteral("/dev/null") << QStringLiteral("12") << false;
        QTest::newRow("baud words") << QStringLiteral("/dev/null") << QStringLiteral("fast") << false;
    }
    void refusesBadInputWithAReason()
    {
        QFETCH(QString, path);
        QFETCH(QString, baud);
        QFETCH(bool, opens);
        Bench bench;
        bench.show();
        bench.type(bench.path, path);
        bench.type(bench.baud, baud);
        QCOMPARE(bench.open->isEnabled(), opens);
        QCOMPARE(bench.open->toolTip().isEmpty(), opens);
        QTest::keyClick(bench.baud, Qt::Key_Return);
        QCOMPARE(bench.dialog.isVisible(), !opens);
        QCOMPARE(bench.dialog.portName(), opens ? path : QString());
    }

    void cancelChangesNothing()
    {
        Bench bench({usbPort(QStringLiteral("/dev/ttyUSB0"), QStringLiteral("A")),
                     usbPort(QStringLiteral("/dev/ttyUSB1"), QStringLiteral("B"))});
        bench.show();
        QTest::keyClick(bench.tree, Qt::Key_Down);
        QCOMPARE(bench.path->text(), QStringLiteral("/dev/ttyUSB1"));
        QTest::keyClick(bench.tree, Qt::Key_Escape);
        QVERIFY(!bench.dialog.isVisible());
        QCOMPARE(bench.dialog.portName(), QString());
        QVERIFY(!QFile::exists(settings_keys::kFile));
        // The next run starts from what was accepted, not from what was cancelled.
        bench.show();
        QCOMPARE(bench.path->text(), QStringLiteral("/dev/ttyUSB0"));
    }

    void doubleClickOpens()
    {
        Bench bench({usbPort(QStringLiteral("/dev/ttyUSB0"), QStringLiteral("A")),
                     usbPort(QStringLiteral("/dev/ttyUSB1"), QStringLiteral("B"))});
        bench.show();
        const QPoint second = bench.tree->visualItemRect(bench.tree->topLevelItem(1)).center();
        QTest::mouseClick(bench.tree->viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(bench.tree->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(bench.dialog.result(), int(QDialog::Accepted));
        QCOMPARE(bench.dialog.portName(), QStringLiteral("/dev/ttyUSB1"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestFormComSelect)
#include "tst_form_com_select.moc"
