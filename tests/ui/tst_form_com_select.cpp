#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include "app/settings_keys.h"
#include "support/pty_pair.h"
#include "ui/form_com_select.h"

using port_choice::PortEntry;

namespace {

PortEntry usbPort(int place, const QString &serialNumber)
{
    return {QStringLiteral("/dev/ttyUSB%1").arg(place), {}, {}, serialNumber, 0x0403, 0x6001, true};
}

/// The dialog on the screen, with a list of ports that the test plugs and unplugs.
struct Bench
{
    QList<PortEntry> ports;
    form_com_select dialog{nullptr, [this] { return ports; }};
    QTreeWidget *tree = dialog.findChild<QTreeWidget *>();
    QLineEdit *path = dialog.findChild<QLineEdit *>(QStringLiteral("LE_path"));
    QComboBox *baud = dialog.findChild<QComboBox *>(QStringLiteral("CB_baud"));
    QComboBox *recent = dialog.findChild<QComboBox *>(QStringLiteral("CB_recent"));
    QCheckBox *reconnect = dialog.findChild<QCheckBox *>();
    QPushButton *open = dialog.findChild<QPushButton *>(QStringLiteral("BTN_open"));

    explicit Bench(const QList<PortEntry> &plugged = {}) : ports(plugged) { show(); }
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
    QString pathProblem() const { return dialog.findChild<QLabel *>(QStringLiteral("LBL_pathProblem"))->text(); }
};

} // namespace

class TestFormComSelect : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void acceptsATypedPathAndRemembersIt()
    {
        const PtyPair pty;
        {
            Bench bench;
            QCOMPARE(bench.dialog.findChild<QStackedWidget *>()->currentIndex(), 1); // says that nothing is plugged in
            QTest::keyClicks(bench.dialog.focusWidget(), pty.path());                // the field has the focus
            bench.type(bench.baud, QStringLiteral("250000"));
            QTest::keyClick(bench.dialog.focusWidget(), Qt::Key_Return);
            QCOMPARE(bench.dialog.result(), int(QDialog::Accepted));
            QCOMPARE(bench.dialog.portName(), pty.path());
            QCOMPARE(bench.dialog.baudRate(), 250000);
        }
        Bench bench({usbPort(0, QStringLiteral("A"))});
        QCOMPARE(bench.path->text(), pty.path());
        QCOMPARE(bench.baud->currentText(), QLatin1String("250000"));
        QCOMPARE(bench.pathProblem(), QString());
        QCOMPARE(bench.selected(), QString());
    }

    void findsTheDeviceAtItsNewPlace()
    {
        {
            Bench bench({usbPort(0, QStringLiteral("A")), usbPort(1, QStringLiteral("C"))});
            QTest::keyClick(bench.tree, Qt::Key_Return);
            QCOMPARE(bench.dialog.portName(), QLatin1String("/dev/ttyUSB0"));
        }
        Bench bench({usbPort(0, QStringLiteral("B"))});
        QCOMPARE(bench.selected(), QLatin1String("/dev/ttyUSB0"));
        // It is plugged in at another place while the dialog waits: it is the port that the user is waiting for.
        bench.ports.append(usbPort(1, QStringLiteral("A")));
        QTRY_COMPARE(bench.selected(), QLatin1String("/dev/ttyUSB1"));
        QCOMPARE(bench.path->text(), QLatin1String("/dev/ttyUSB1"));
    }

    void followsPluggingAndKeepsTheChoice()
    {
        QList<PortEntry> many;
        for (int i = 0; i < 60; ++i)
            many.append(usbPort(i, QString::number(i)));
        Bench bench(many);
        bench.tree->setCurrentItem(bench.tree->topLevelItem(40));
        const int scrolled = bench.tree->verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        QTreeWidgetItem *chosen = bench.tree->currentItem();
        QSignalSpy changes(bench.tree->model(), &QAbstractItemModel::dataChanged);

        bench.ports.removeAt(50);
        bench.ports.append(usbPort(99, QStringLiteral("99")));
        QTRY_COMPARE(bench.tree->topLevelItem(59)->text(0), QLatin1String("/dev/ttyUSB99"));
        QCOMPARE(bench.tree->topLevelItemCount(), 60);
        QCOMPARE(bench.tree->currentItem(), chosen);
        QCOMPARE(bench.tree->verticalScrollBar()->value(), scrolled);
        for (const QList<QVariant> &change : changes) // other rows were not even redrawn
            QVERIFY(change.at(0).toModelIndex().row() >= 50);

        // The chosen one disappears and comes back.
        const PortEntry gone = bench.ports.takeAt(40);
        QTRY_COMPARE(bench.tree->topLevelItemCount(), 59);
        QCOMPARE(bench.selected(), QString());
        QCOMPARE(bench.path->text(), gone.path);
        QVERIFY(bench.pathProblem().contains(QLatin1String("is not there")));
        bench.ports.insert(40, gone);
        QTRY_COMPARE(bench.selected(), gone.path);
        QCOMPARE(bench.pathProblem(), QString());

        bench.ports.clear();
        QTRY_COMPARE(bench.tree->topLevelItemCount(), 0);
    }

    void acceptsAnAddressAndOffersItAgain()
    {
        const QString address = QStringLiteral("rfc2217://lab-pc:4001?baud=921600");
        {
            Bench bench({usbPort(0, QStringLiteral("A"))});
            QVERIFY(bench.reconnect->isChecked()); // an adapter with a serial number
            bench.type(bench.path, QStringLiteral("udp://lab-pc"));
            QVERIFY(bench.pathProblem().contains(QLatin1String("Add the port")) && !bench.open->isEnabled());
            QVERIFY(!bench.reconnect->isEnabled());
            bench.type(bench.path, address);
            QVERIFY(!bench.baud->isEnabled()); // the address has a rate
            QVERIFY(bench.reconnect->isEnabled() && !bench.reconnect->isChecked());
            QTest::mouseClick(bench.reconnect, Qt::LeftButton, {}, QPoint(8, bench.reconnect->height() / 2));
            QTest::keyClick(bench.path, Qt::Key_Return);
            QCOMPARE(bench.dialog.source().text(), address);
            QVERIFY(bench.dialog.reconnects());
            bench.show();
            bench.type(bench.path, QStringLiteral("tcp://[::1]:80"));
            bench.type(bench.baud, QStringLiteral("57600"));
            QTest::keyClick(bench.baud, Qt::Key_Return);
            QCOMPARE(bench.dialog.source().text(), QLatin1String("tcp://[::1]:80?baud=57600"));
        }
        Bench bench({usbPort(0, QStringLiteral("A"))});
        QCOMPARE(bench.path->text(), QLatin1String("tcp://[::1]:80?baud=57600"));
        QCOMPARE(bench.recent->count(), 2);
        bench.recent->setFocus();
        QTest::keyClick(bench.recent, Qt::Key_Down);
        QTest::keyClick(bench.recent, Qt::Key_Down);
        QCOMPARE(bench.path->text(), address);
        QCOMPARE(bench.selected(), QString());
        bench.type(bench.path, QStringLiteral("file:walk.mcap"));
        QVERIFY(bench.open->isEnabled() && !bench.baud->isEnabled() && !bench.reconnect->isEnabled());
    }

    void refusesBadInputWithAReason()
    {
        const std::tuple<const char *, const char *, bool> rows[] = {{"/dev/nothing", "9600", true}, // may appear
                                                                     {"/dev", "9600", false},
                                                                     {"  ", "9600", false},
                                                                     {"/dev/null", "12", false}};
        for (const auto &[path, baud, opens] : rows) {
            Bench bench;
            bench.type(bench.path, QLatin1String(path));
            bench.type(bench.baud, QLatin1String(baud));
            QVERIFY2(bench.open->isEnabled() == opens && bench.open->toolTip().isEmpty() == opens, path);
            QTest::keyClick(bench.baud, Qt::Key_Return);
            QVERIFY2(bench.dialog.isVisible() == !opens, path);
            QCOMPARE(bench.dialog.portName(), QLatin1String(opens ? path : ""));
        }
    }

    void cancelChangesNothing()
    {
        Bench bench({usbPort(0, QStringLiteral("A")), usbPort(1, QStringLiteral("B"))});
        QTest::keyClick(bench.tree, Qt::Key_Down);
        QCOMPARE(bench.path->text(), QLatin1String("/dev/ttyUSB1"));
        QTest::keyClick(bench.tree, Qt::Key_Escape);
        QVERIFY(!bench.dialog.isVisible());
        QCOMPARE(bench.dialog.portName(), QString());
        QVERIFY(!QSettings(settings_keys::kFile, QSettings::IniFormat).contains(settings_keys::kPort));
        // The next run starts from what was accepted, not from what was cancelled.
        bench.show();
        QCOMPARE(bench.path->text(), QLatin1String("/dev/ttyUSB0"));
        // A double click opens.
        const QPoint second = bench.tree->visualItemRect(bench.tree->topLevelItem(1)).center();
        QTest::mouseClick(bench.tree->viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(bench.tree->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(bench.dialog.result(), int(QDialog::Accepted));
        QCOMPARE(bench.dialog.portName(), QLatin1String("/dev/ttyUSB1"));
    }
};

QTEST_MAIN(TestFormComSelect)
#include "tst_form_com_select.moc"
