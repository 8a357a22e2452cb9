#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <limits>

#include "attitude/adi_layout.h"
#include "attitude/tool_adi.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

NormalizedAttitude attitude(const QQuaternion &quaternion)
{
    NormalizedAttitude result;
    result.valid = true;
    result.quaternion = quaternion;
    return result;
}
NormalizedAttitude attitude(float roll, float pitch, float yaw)
{
    return attitude(attitude_convention::toDisplayQuaternion(roll, pitch, yaw, OrientationPreset::RfuEnu312));
}

/// A real window on the screen. Counts its repaints, because they are the cost of a live view.
class Window : public ToolADI
{
public:
    int paints = 0;

    Window()
    {
        setStyleSheet(QStringLiteral("background: white"));
        resize(240, 240);
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this));
    }
    /// Colour at a place relative to the ball's centre, in radii; y grows downwards.
    QColor at(qreal x, qreal y)
    {
        const AdiLayout layout = AdiLayout::forSize(size());
        const QImage image = grab().toImage();
        return image.pixelColor(((layout.center + QPointF(x, y) * layout.radius) * image.devicePixelRatio()).toPoint());
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ToolADI::paintEvent(event);
    }
};

} // namespace

class TestToolAdi : public QObject
{
    Q_OBJECT

private slots:
    void skyAndGround()
    {
        // Roll and pitch, then a point of the sky and one of the ground in radii from the centre of the ball.
        const std::array<float, 6> rows[] = {{0, 0, 0.6F, -0.3F, 0.6F, 0.3F},   {180, 0, 0.6F, 0.3F, 0.6F, -0.3F},
                                             {45, 0, -0.5F, 0.3F, 0.5F, -0.3F}, {-45, 0, 0.5F, 0.3F, -0.5F, -0.3F},
                                             {0, 15, 0.6F, 0.3F, 0.3F, 0.8F},   {0, -15, 0.3F, -0.8F, 0.6F, -0.3F},
                                             {0, 89, 0.6F, 0.5F, 0, 0.94F}}; // straight up shows a sliver
        Window window;
        for (const auto &[roll, pitch, skyX, skyY, groundX, groundY] : rows) {
            window.setAttitude(attitude(roll, pitch, 0));
            const QColor sky = window.at(skyX, skyY);
            const QColor ground = window.at(groundX, groundY);
            const bool good = sky.blue() > sky.red() + 60 && ground.red() > ground.blue() + 40;
            QVERIFY2(good, qPrintable(QStringLiteral("roll %1, pitch %2").arg(roll).arg(pitch)));
        }
    }

    void withoutAttitudeItIsGrey()
    {
        Window window;
        for (const NormalizedAttitude &value :
             {NormalizedAttitude(), attitude(QQuaternion(kNaN, 0, 0, 0)),
              attitude(QQuaternion(1, 0, std::numeric_limits<float>::infinity(), 0)), attitude(kNaN, 1, 2)}) {
            window.setAttitude(attitude(10, 10, 10));
            QVERIFY(window.hasAttitude());
            window.setAttitude(value);
            QVERIFY(!window.hasAttitude());
            for (const qreal y : {-0.7, -0.4, 0.4, 0.7}) {
                const QColor color = window.at(0.3, y);
                QVERIFY2(color.saturation() < 20 && color != QColor(Qt::white), qPrintable(color.name()));
            }
        }
    }

    void headingCountsClockwise()
    {
        // The yaw of the display rotation counts to the left; the fourth rounds up to north.
        for (const auto &[yaw, heading] :
             {std::pair(0.0F, 0), {90.0F, 270}, {-120.0F, 120}, {0.4F, 0}, {180.0F, 180}}) {
            ToolADI adi;
            adi.setAttitude(attitude(20, -30, yaw));
            QCOMPARE(adi.heading(), heading);
        }
    }

    void repaintsOnlyOnChange()
    {
        Window window;
        window.setAttitude(attitude(1, 2, 3));
        QTRY_VERIFY(window.paints > 0);
        QCoreApplication::processEvents();
        const int before = window.paints;
        window.setAttitude(attitude(1, 2, 3));
        QCoreApplication::processEvents();
        QCOMPARE(window.paints, before);
        window.setAttitude(attitude(1, 2, 4));
        QTRY_VERIFY(window.paints > before);
    }

    void everySizePaintsWithoutWarning()
    {
        ToolADI adi;
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        for (int side = 1; side <= 600; side += side < 120 ? 1 : 37) {
            for (const QSize size : {QSize(side, side), QSize(side, 1), QSize(side, 40), QSize(60, side)}) {
                adi.resize(size);
                adi.setAttitude(side % 3 == 0 ? NormalizedAttitude() : attitude(float(side), float(side) / 4, 7));
                adi.grab();
            }
        }
    }

    void everythingStaysInside()
    {
        for (int w = 1; w <= 700; w += 9) {
            for (int h = 1; h <= 700; h += 11) {
                const AdiLayout layout = AdiLayout::forSize(QSizeF(w, h));
                if (layout.radius <= 0)
                    continue;
                const qreal bottom = layout.center.y() + layout.radius * 1.02;
                const QByteArray size = QByteArray::number(w) + 'x' + QByteArray::number(h);
                QVERIFY2(layout.center.y() - layout.radius * 1.03 - layout.tickLength() >= -1, size.constData());
                QVERIFY2(layout.center.x() - layout.radius * 1.04 >= -1, size.constData());
                QVERIFY2(bottom <= h + 1, size.constData());
                const QRectF &heading = layout.heading;
                const bool clear = heading.top() > bottom && QRectF(0, 0, w, h).contains(heading);
                QVERIFY2(heading.isEmpty() || clear, size.constData());
            }
        }
    }
};

QTEST_MAIN(TestToolAdi)
#include "tst_tool_adi.moc"
