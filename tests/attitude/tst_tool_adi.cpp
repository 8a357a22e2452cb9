#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <limits>

#include "attitude/adi_layout.h"
#include "attitude/tool_adi.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

NormalizedAttitude attitude(float roll, float pitch, float heading)
{
    NormalizedAttitude result;
    result.valid = true;
    result.quaternion = attitude_convention::toDisplayQuaternion(roll, pitch, -heading, OrientationPreset::RfuEnu312);
    return result;
}

bool isSky(QColor color)
{
    return color.blue() > color.red() + 60;
}
bool isGround(QColor color)
{
    return color.red() > color.blue() + 40;
}

/// Counts what it is told to paint, because repainting is what a live view pays for.
class CountingAdi : public ToolADI
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ToolADI::paintEvent(event);
    }
};

/// A real window on the screen with its picture.
struct Window
{
    CountingAdi adi;

    explicit Window(int side = 240)
    {
        adi.setStyleSheet(QStringLiteral("background: white"));
        adi.resize(side, side);
        adi.show();
    }
    bool isUp() { return QTest::qWaitForWindowExposed(&adi); }
    /// Colour at a place relative to the ball's centre, in radii; y grows downwards.
    QColor at(qreal x, qreal y)
    {
        const AdiLayout layout = AdiLayout::forSize(adi.size());
        const QImage image = adi.grab().toImage();
        const QPointF point = (layout.center + QPointF(x, y) * layout.radius) * image.devicePixelRatio();
        return image.pixelColor(point.toPoint());
    }
};

int failures = 0;
void countWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg) {
        ++failures;
        fprintf(stderr, "%s\n", qPrintable(message));
    }
}

} // namespace

class TestToolAdi : public QObject
{
    Q_OBJECT

private slots:
    void skyAndGround_data()
    {
        QTest::addColumn<float>("roll");
        QTest::addColumn<float>("pitch");
        QTest::addColumn<QPointF>("sky"); // in radii from the centre of the ball
        QTest::addColumn<QPointF>("ground");
        QTest::newRow("level") << 0.0F << 0.0F << QPointF(0.6, -0.3) << QPointF(0.6, 0.3);
        QTest::newRow("inverted") << 180.0F << 0.0F << QPointF(0.6, 0.3) << QPointF(0.6, -0.3);
        QTest::newRow("right wing down") << 45.0F << 0.0F << QPointF(-0.5, 0.3) << QPointF(0.5, -0.3);
        QTest::newRow("left wing down") << -45.0F << 0.0F << QPointF(0.5, 0.3) << QPointF(-0.5, -0.3);
        QTest::newRow("nose up") << 0.0F << 15.0F << QPointF(0.6, 0.3) << QPointF(0.3, 0.8);
        QTest::newRow("nose down") << 0.0F << -15.0F << QPointF(0.3, -0.8) << QPointF(0.6, -0.3);
        QTest::newRow("straight up keeps a sliver") << 0.0F << 89.0F << QPointF(0.6, 0.5) << QPointF(0.0, 0.94);
    }
    void skyAndGround()
    {
        QFETCH(float, roll);
        QFETCH(float, pitch);
        QFETCH(QPointF, sky);
        QFETCH(QPointF, ground);
        Window window;
        QVERIFY(window.isUp());
        window.adi.setAttitude(attitude(roll, pitch, 0));
        QVERIFY(window.adi.hasAttitude());
        QVERIFY2(isSky(window.at(sky.x(), sky.y())), qPrintable(window.at(sky.x(), sky.y()).name()));
        QVERIFY2(isGround(window.at(ground.x(), ground.y())), qPrintable(window.at(ground.x(), ground.y()).name()));
    }

    void withoutAttitudeItIsGrey_data()
    {
        QTest::addColumn<NormalizedAttitude>("value");
        NormalizedAttitude value;
        QTest::newRow("not valid") << value;
        value.valid = true;
        value.quaternion = QQuaternion(kNaN, 0, 0, 0);
        QTest::newRow("nan") << value;
        value.quaternion = QQuaternion(1, std::numeric_limits<float>::infinity(), 0, 0);
        QTest::newRow("infinite") << value;
        value.quaternion = attitude_convention::toDisplayQuaternion(kNaN, 1, 2, OrientationPreset::RfuEnu312);
        QTest::newRow("angles that are no numbers") << value;
    }
    void withoutAttitudeItIsGrey()
    {
        QFETCH(NormalizedAttitude, value);
        Window window;
        QVERIFY(window.isUp());
        window.adi.setAttitude(attitude(10, 10, 10));
        window.adi.setAttitude(value);
        QVERIFY(!window.adi.hasAttitude());
        for (const qreal y : {-0.7, -0.4, 0.4, 0.7}) {
            const QColor color = window.at(0.3, y);
            QVERIFY2(color.saturation() < 20, qPrintable(color.name()));
            QVERIFY2(color != QColor(Qt::white), "the ball is still there");
        }
    }

    void headingCountsClockwise_data()
    {
        QTest::addColumn<float>("yaw"); // of the display rotation, to the left
        QTest::addColumn<int>("heading");
        QTest::newRow("north") << 0.0F << 0;
        QTest::newRow("nose to the left") << 90.0F << 270;
        QTest::newRow("nose to the right") << -120.0F << 120;
        QTest::newRow("rounds up to north") << 0.4F << 0;
        QTest::newRow("south") << 180.0F << 180;
    }
    void headingCountsClockwise()
    {
        QFETCH(float, yaw);
        QFETCH(int, heading);
        ToolADI adi;
        adi.setAttitude(attitude(20, -30, -yaw));
        QCOMPARE(adi.heading(), heading);
    }

    void repaintsOnlyOnChange()
    {
        Window window;
        QVERIFY(window.isUp());
        window.adi.setAttitude(attitude(1, 2, 3));
        QTRY_VERIFY(window.adi.paints > 0);
        QCoreApplication::processEvents();
        const int before = window.adi.paints;
        for (int i = 0; i < 5; ++i) {
            window.adi.setAttitude(attitude(1, 2, 3));
            QCoreApplication::processEvents();
        }
        QCOMPARE(window.adi.paints, before);
        window.adi.setAttitude(attitude(1, 2, 4));
        QTRY_VERIFY(window.adi.paints > before);
    }

    void everySizePaintsWithoutWarning()
    {
        ToolADI adi;
        failures = 0;
        const QtMessageHandler old = qInstallMessageHandler(countWarnings);
        for (int side = 1; side <= 600; side += side < 120 ? 1 : 37) {
            for (const QSize size : {QSize(side, side), QSize(side, 1), QSize(side, 40), QSize(60, side)}) {
                adi.resize(size);
                adi.setAttitude(side % 3 == 0 ? NormalizedAttitude() : attitude(float(side), float(side) / 4, 7));
                adi.grab();
            }
        }
        qInstallMessageHandler(old);
        QCOMPARE(failures, 0);
    }

    void everythingStaysInside()
    {
        for (int w = 1; w <= 700; w += 9) {
            for (int h = 1; h <= 700; h += 11) {
                const AdiLayout layout = AdiLayout::forSize(QSizeF(w, h));
                if (layout.radius <= 0)
                    continue;
                const qreal reach = layout.radius * 1.03 + layout.tickLength();
                const QByteArray size = QByteArray::number(w) + 'x' + QByteArray::number(h);
                QVERIFY2(layout.center.y() - reach >= -1, size.constData());
                QVERIFY2(layout.center.x() - layout.radius * 1.04 >= -1, size.constData());
                QVERIFY2(layout.center.y() + layout.radius * 1.02 <= h + 1, size.constData());
                if (layout.heading.isEmpty())
                    continue;
                QVERIFY2(layout.heading.top() > layout.center.y() + layout.radius * 1.02, size.constData());
                QVERIFY2(QRectF(0, 0, w, h).contains(layout.heading), size.constData());
            }
        }
    }
};

QTEST_MAIN(TestToolAdi)
#include "tst_tool_adi.moc"
