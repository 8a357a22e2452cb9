#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QQuickView>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <limits>

#include "app/quick_window.h"
#include "app/settings_keys.h"
#include "app/value_format.h"
#include "attitude/form_threed.h"
#include "attitude/qt6_model_asset.h"
#include "support/files.h"

namespace {

NormalizedAttitude attitude(const QQuaternion &device, OrientationPreset preset = OrientationPreset::RfuEnu312)
{
    NodeSnapshot node;
    node.has_quat = true;
    const float values[] = {device.scalar(), device.x(), device.y(), device.z()};
    std::copy(std::begin(values), std::end(values), node.sample.quat);
    return attitude_convention::normalizeAttitude(node, preset);
}
NormalizedAttitude pitched(float degrees)
{
    return attitude(QQuaternion::fromAxisAndAngle(1, 0, 0, degrees));
}

/// Centre of the pixels of a part, identified by their hue and minimum saturation.
QPointF middle(const QImage &image, int hueFrom, int hueTo, int saturation)
{
    QPointF sum;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int hue = pixel.hsvHue() > 340 ? pixel.hsvHue() - 360 : pixel.hsvHue();
            if (pixel.hsvSaturation() >= saturation && hue >= hueFrom && hue <= hueTo) {
                sum += QPointF(x, y);
                ++count;
            }
        }
    }
    return count > 8 ? sum / count : QPointF(-1, -1);
}

class Window : public form_threed
{
public:
    Window()
    {
        resize(900, 600);
        open();
        QVERIFY(QTest::qWaitForWindowExposed(this));
        if (view())
            QVERIFY(QTest::qWaitForWindowExposed(view()));
    }
    void show(const NormalizedAttitude &shown)
    {
        setAttitude(shown);
        objectReplot();
    }
    QString text(const char *name) { return findChild<QLabel *>(QLatin1String(name))->text().trimmed(); }
    void click(const char *name) { findChild<QPushButton *>(QLatin1String(name))->click(); }
    QComboBox *presets() { return findChild<QComboBox *>(QStringLiteral("CBRotationPreset")); }
};

} // namespace

#define NEEDS_PICTURE(window)                                                                                          \
    if (!(window).view())                                                                                              \
    QSKIP("No OpenGL here")

class TestFormThreed : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void init() { QFile::remove(settings_keys::kFile); }

    void noPictureIsSaid()
    {
        Window window;
        QCOMPARE(window.view() == nullptr, qEnvironmentVariable("QT_QUICK_BACKEND") == QLatin1String("software"));
        auto *sentence = window.findChild<QLabel *>(QStringLiteral("LBL_noPicture"));
        QCOMPARE(sentence->isVisible(), window.view() == nullptr);
        QCOMPARE(sentence->text().contains(QLatin1String("OpenGL")), window.view() == nullptr);
        window.show(pitched(12));
        QCOMPARE(window.text("VAL_pitch"), QStringLiteral("+12.00°"));
    }

    void posesAreRightInNumbersAndPicture()
    {
        const auto rfu = OrientationPreset::RfuEnu312;
        const auto flu = OrientationPreset::FluNwuZyx;
        const QVector3D x(1, 0, 0);
        const QVector3D y(0, 1, 0);
        const QVector3D z(0, 0, 1);
        // A turn about an axis of the device; roll, pitch and yaw in degrees; what the picture shows.
        const std::tuple<OrientationPreset, QVector3D, float, const char *, const char *> rows[] = {
            {rfu, x, 40, "0.00 +40.00 0.00", "nose up"},
            {rfu, x, -40, "0.00 −40.00 0.00", "nose down"},
            {rfu, y, 60, "+60.00 0.00 0.00", "right wing down"},
            {rfu, y, -60, "−60.00 0.00 0.00", "left wing down"},
            {rfu, z, -90, "0.00 0.00 −90.00", "nose right, fin up"},
            {rfu, z, 90, "0.00 0.00 +90.00", "nose left"},
            {rfu, y, 179.999F, "+180.00 0.00 0.00", "fin down"},
            {flu, y, -40, "0.00 +40.00 0.00", "nose up"},
            {flu, x, 60, "+60.00 0.00 0.00", "right wing down"},
            {flu, z, -90, "0.00 0.00 −90.00", "nose right, fin up"}};
        for (const auto &[preset, axis, angle, numbers, seen] : rows) {
            Window window;
            window.setOrientationPreset(preset);
            window.show(attitude(QQuaternion::fromAxisAndAngle(axis, angle), preset));
            const QStringList texts{window.text("VAL_roll"), window.text("VAL_pitch"), window.text("VAL_yaw")};
            QCOMPARE(texts.join(u' ').remove(u'°'), QString::fromUtf8(numbers));
            if (!window.view())
                continue;
            window.backend().setBodyAxes({{}, {}, {}}); // the arrows have the same colours as parts of the jet
            const QImage image = window.view()->grabWindow();
            const double unit = image.height() / 100.0;
            const QPointF nose = middle(image, 28, 50, 150);
            const QPointF fin = middle(image, 217, 232, 180);
            const QPointF port = middle(image, -10, 10, 120);
            const QPointF starboard = middle(image, 130, 155, 120);
            const QMap<QString, bool> found{
                {QStringLiteral("nose up"), nose.y() >= 0 && nose.y() < fin.y() - 5 * unit},
                {QStringLiteral("nose down"), nose.y() > fin.y() + 5 * unit},
                {QStringLiteral("nose right"), nose.x() > fin.x() + 20 * unit},
                {QStringLiteral("nose left"), nose.x() >= 0 && nose.x() < fin.x() - 20 * unit},
                {QStringLiteral("right wing down"), port.y() >= 0 && starboard.y() > port.y() + 10 * unit},
                {QStringLiteral("left wing down"), starboard.y() >= 0 && port.y() > starboard.y() + 10 * unit},
                {QStringLiteral("fin up"), fin.y() >= 0 && fin.y() < (port.y() + starboard.y()) / 2},
                {QStringLiteral("fin down"), fin.y() > (port.y() + starboard.y()) / 2},
            };
            for (const QString &wanted : QString::fromLatin1(seen).split(QStringLiteral(", ")))
                QVERIFY2(found[wanted], qPrintable(wanted));
        }
    }

    void mouseMovesTheCamera()
    {
        Window window;
        NEEDS_PICTURE(window);
        window.show(pitched(10));
        QQuickView *view = window.view();
        QVERIFY(!view->grabWindow().isNull()); // the names of the axes are in place from the first picture on
        window.click("BTNResetCamera");
        const QImage first = view->grabWindow();
        const QPoint at(view->width() / 2, view->height() / 2);
        const auto drag = [&](Qt::MouseButton button) {
            QTest::mousePress(view, button, {}, at);
            QTest::mouseMove(view, at + QPoint(60, 30));
            QTest::mouseRelease(view, button, {}, at + QPoint(60, 30));
        };
        drag(Qt::LeftButton);
        const QImage turned = view->grabWindow();
        QVERIFY(turned != first);
        drag(Qt::RightButton);
        QVERIFY(view->grabWindow() != turned);
        window.click("BTNResetCamera");
        QTRY_COMPARE(view->grabWindow(), first);
        QTRY_COMPARE(QGuiApplication::focusWindow(), view); // a click into the picture gives it the keys
        QTest::keyClick(view, Qt::Key_Plus);
        QVERIFY(view->grabWindow() != first);
        QTest::mouseDClick(view, Qt::LeftButton, {}, at);
        QTRY_COMPARE(view->grabWindow(), first);
    }

    void drawsOnlyWhileOpen()
    {
        Window window;
        QVERIFY(window.isPlotting());
        window.setAttitude(pitched(20));
        QTRY_COMPARE(window.backend().euler().y(), 20.0F);
        window.close();
        QVERIFY(!window.isPlotting());
        window.open();
        QVERIFY(window.isPlotting());
    }

    void userChoosesTheMounting()
    {
        Window window;
        const QSignalSpy changed(&window, &form_threed::orientationPresetChanged);
        window.show(pitched(10));
        window.click("BTNSetHome");
        window.presets()->setCurrentIndex(1);
        QCOMPARE(changed.value(0).value(0).value<OrientationPreset>(), OrientationPreset::FluNwuZyx);
        QVERIFY(!window.backend().homeReferenceActive()); // it was captured in other axes
        QCOMPARE(window.backend().bodyAxisX(), QVector3D(1, 0, 0));
        QCOMPARE(window.text("LBL_preset"),
                 QStringLiteral("Current preset: FLU body or NWU body, Euler ZYX intrinsic (Z-Y-X)."));
        QCOMPARE(Window().orientationPreset(), OrientationPreset::FluNwuZyx); // the next window starts with it

        window.setOrientationPreset(OrientationPreset::None);
        QCOMPARE(window.presets()->currentIndex(), -1);
        QCOMPARE(window.text("LBL_preset"), QStringLiteral("Current preset: Unknown."));
        window.setOrientationPreset(OrientationPreset::RfuEnu312);
        QCOMPARE(window.presets()->currentText(), QStringLiteral("RFU / ENU 312 (Z-X-Y)"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(Window().orientationPreset(), OrientationPreset::FluNwuZyx);
    }

    void homeIsCapturedComparedAndCleared()
    {
        Window window;
        const QString dash = value_format::absent();
        QVERIFY(window.text("LBL_home").startsWith(QLatin1String("Capture the current live pose as Home")));
        window.show(pitched(10));
        window.click("BTNSetHome");
        QVERIFY(window.text("LBL_home").startsWith(QLatin1String("Home pose captured. Delta shows")));
        window.show(pitched(45.5F));
        QCOMPARE(window.text("VAL_dpitch"), QStringLiteral("+35.50°"));
        QCOMPARE(window.backend().relativeEuler().y(), 35.5F);
        QVERIFY(window.backend().homeReferenceActive());
        NormalizedAttitude broken = pitched(1);
        broken.quaternion.setX(std::numeric_limits<float>::quiet_NaN());
        window.show(broken); // as when the device is gone; home stays
        QCOMPARE(window.text("VAL_dpitch"), dash);
        QVERIFY(window.backend().homeReferenceActive());
        window.click("BTNClearHome");
        QVERIFY(!window.backend().homeReferenceActive());

        window.click("BTNSetHome");
        QCOMPARE(window.text("LBL_home"), QStringLiteral("Waiting for live attitude data to capture home pose."));
        window.show(pitched(-5));
        QVERIFY(window.backend().homeReferenceActive());
        QCOMPARE(window.text("VAL_dpitch"), QStringLiteral("0.00°"));
    }

    /// A home belongs to a product's mounting: it returns with the mounting, and only the current one is cleared.
    void homeBelongsToTheMounting()
    {
        const auto rfu = OrientationPreset::RfuEnu312;
        const auto flu = OrientationPreset::FluNwuZyx;
        Window window;
        const QString one = QStringLiteral("MZ221");
        const QString two = QStringLiteral("MZ14");
        enum Does { Nothing, Capture, Clear, Await };
        const std::tuple<QString, OrientationPreset, Does, float> rows[] = {
            {one, rfu, Capture, 10}, {one, flu, Nothing, 0},  {one, rfu, Nothing, 10}, // changed and changed back
            {{}, rfu, Nothing, 0},   {one, rfu, Nothing, 10},                          // closed and opened
            {two, rfu, Capture, 20}, {two, flu, Capture, 30}, {{}, flu, Nothing, 0},   {two, flu, Nothing, 30},
            {two, flu, Clear, 0},    {two, rfu, Nothing, 20}, {one, rfu, Nothing, 10}};
        for (const auto &[product, preset, does, home] : rows) {
            window.setMounting(product, preset);
            if (does == Capture) {
                window.show(attitude(QQuaternion::fromAxisAndAngle(1, 0, 0, home), preset));
                window.click("BTNSetHome");
            } else if (does == Clear) {
                window.click("BTNClearHome");
            }
            window.show(attitude({}, preset));
            QCOMPARE(window.backend().homeReferenceActive(), home != 0);
            QCOMPARE(window.findChild<QPushButton *>(QStringLiteral("BTNClearHome"))->isEnabled(), home != 0);
            if (home != 0 && preset == rfu)
                QCOMPARE(window.backend().relativeEuler().y(), -home);
        }
        window.show({});
        window.setMounting(one, flu);
        window.click("BTNSetHome"); // awaits a pose of this mounting, not of the next
        window.setMounting(two, flu);
        window.show(attitude({}, flu));
        QVERIFY(!window.backend().homeReferenceActive());
    }

    /// No samples arrive: the last pose is shown in the new axes as soon as it is given in them.
    void mountingChangesWithoutSamples()
    {
        Window window;
        const QQuaternion pose = QQuaternion::fromAxisAndAngle(1, 0, 0, 30);
        window.show(attitude(pose));
        window.setMounting(QStringLiteral("MZ221"), OrientationPreset::FluNwuZyx);
        const NormalizedAttitude anew = attitude(pose, OrientationPreset::FluNwuZyx);
        window.setAttitude(anew);
        QTRY_COMPARE(window.backend().quaternion(), anew.quaternion);
        QTRY_COMPARE(window.text("VAL_roll"), QStringLiteral("+30.00°"));
    }

    void everyBuiltInModelIsDrawn()
    {
        Window window;
        NEEDS_PICTURE(window);
        window.backend().setObjSource({});
        const QImage empty = window.view()->grabWindow();
        for (const char *name : {"jet.obj", "cube.obj", "plane.obj", "spaceship.obj"}) {
            QString error;
            QVERIFY2(window.loadobj(Qt6ModelAsset::builtInScene(QLatin1String(name)), &error), qPrintable(error));
            const QImage full = window.view()->grabWindow();
            int covered = 0;
            for (int y = 0; y < full.height(); y += 4) {
                for (int x = 0; x < full.width(); x += 4)
                    covered += full.pixel(x, y) != empty.pixel(x, y);
            }
            QVERIFY2(covered > full.width() * full.height() / 16 / 50, name);
        }
    }

    /// A window may be closed for good before its scene has had a first picture.
    void goesAwayBeforeItIsDrawn()
    {
        for (const char *name : {"jet.obj", "cube.obj", "plane.obj", "spaceship.obj"}) {
            form_threed window;
            window.backend().setObjSource({});
            QVERIFY(window.loadobj(Qt6ModelAsset::builtInScene(QLatin1String(name)), nullptr));
            window.open();
        }
    }

    void filesOfOthersAreShownOrRefused()
    {
        Window window;
        NEEDS_PICTURE(window);
        const auto write = [this](const char *name, const QByteArray &bytes) {
            QDir(m_folder.path()).mkpath(QStringLiteral("模型 ü"));
            const QString path = m_folder.filePath(QStringLiteral("模型 ü/") + QLatin1String(name));
            return writeFile(path, bytes) ? path : QString();
        };
        const QByteArray mesh = readFile(QStringLiteral(":/modelscenes/cube/meshes/face_up.mesh"));
        // Far away and tiny: fitted into the picture, where a level plate of it is seen from above.
        const QByteArray plate = "v 1000 0 -.01\nv 1000 0 .01\nv 1000.02 0 .01\nv 1000.02 0 -.01\nf 1 2 3 4\n";
        for (const QString &path : {write("plate.obj", plate), write("face.mesh", mesh)}) {
            QString error;
            window.backend().setObjSource({});
            const QImage empty = window.view()->grabWindow();
            QVERIFY2(window.loadobj(path, &error), qPrintable(error));
            const QImage full = window.view()->grabWindow();
            const QPoint beside(full.width() / 2 - full.height() / 10, full.height() / 2);
            QVERIFY(full.pixelColor(beside) != empty.pixelColor(beside));
        }
        const QUrl shown = window.backend().objSource();
        for (const QString &path : {write("bad.obj", "f 1 2 3\n"), write("bad.mesh", mesh.first(200))}) {
            QString error;
            QVERIFY(!window.loadobj(path, &error));
            QVERIFY(!error.isEmpty());
            QCOMPARE(window.backend().objSource(), shown);
        }
        // Whatever number is wrong in a mesh that is accepted, the renderer survives it.
        for (qsizetype offset = 0; offset + 4 <= mesh.size(); offset += 4) {
            QByteArray changed = mesh;
            qToLittleEndian(0x7FFFFFFFU, changed.data() + offset);
            if (window.loadobj(write("changed.mesh", changed), nullptr))
                QVERIFY(!window.view()->grabWindow().isNull());
        }
    }
};

QTEST_MAIN(TestFormThreed)
#include "tst_form_threed.moc"
