#include <QRegularExpression>
#include <QTest>

#include <limits>

#include "app/theme.h"
#include "ui/sensor_data_panel.h"
#include "ui/value_card.h"

class TestSensorDataPanel : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheStreamCarries();
    void hidesAndShowsTheSummary();
    void paintsAxisColours();
    void movesTheTraceUnderASteadyStream();
    void paintsAnything_data();
    void paintsAnything();
};

namespace {

SensorDataModel sampleModel()
{
    SensorDataModel model;
    model.node.id = 9;
    model.node.time_ms = 61001;
    model.node.temperature = 24.5F;
    model.node.pressure = 101325.0F;
    model.node.acc[0] = 1.0F;
    model.node.quat[0] = 1.0F;
    model.fields = SampleField::Acceleration;
    return model;
}

/// Whether a pixel of about this colour is there; text and lines are antialiased, filled bars are not.
bool contains(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green())
                    + qAbs(pixel.blue() - color.blue())
                < 24)
                return true;
        }
    }
    return false;
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int paints = 0;
};

} // namespace

void TestSensorDataPanel::showsWhatTheStreamCarries()
{
    SensorDataPanel panel;
    panel.setModel(sampleModel());
    QVERIFY(panel.text().contains(QLatin1String("Acceleration X\t+1.000 G")));
    QVERIFY(panel.text().contains(QStringLiteral("Angular rate X\t\u2013 deg/s")));
    QVERIFY(panel.text().contains(QStringLiteral("Quaternion W\t\u2013")));
    QVERIFY(panel.text().contains(QStringLiteral("Node\t9")));
    QVERIFY(panel.text().contains(QStringLiteral("Temperature\t\u2013")));

    SensorDataModel model = sampleModel();
    model.fields |= SampleFields(SampleField::Quaternion) | SampleField::Temperature | SampleField::Time;
    panel.setModel(model);
    QVERIFY(panel.text().contains(QStringLiteral("Quaternion W\t+1.0000")));
    QVERIFY(panel.text().contains(QStringLiteral("Temperature\t24.5 \u00B0C")));
    QVERIFY(panel.text().contains(QStringLiteral("Device time\t00:01:01.001")));

    panel.clear();
    QVERIFY(panel.text().contains(QStringLiteral("Acceleration X\t\u2013 G")));
}

void TestSensorDataPanel::hidesAndShowsTheSummary()
{
    SensorDataPanel panel;
    SensorDataModel model = sampleModel();
    panel.setModel(model);
    QVERIFY(panel.text().contains(QLatin1String("Pressure")));
    panel.setSummaryVisible(false);
    panel.setModel(model);
    QVERIFY(!panel.text().contains(QLatin1String("Pressure")));
}

void TestSensorDataPanel::paintsAxisColours()
{
    SensorDataPanel panel;
    panel.resize(900, 600);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    SensorDataModel model = sampleModel();
    std::fill_n(model.node.acc, 3, 0.5F);
    panel.setModel(model);
    const QImage shown = panel.grab().toImage();
    for (const QColor &color : {theme::kAxisX, theme::kAxisY, theme::kAxisZ, theme::kNorm})
        QVERIFY2(contains(shown, color), qPrintable(color.name()));
    model.node.acc[0] = -0.5F;
    panel.setModel(model);
    QVERIFY(panel.grab().toImage() != shown);
}

void TestSensorDataPanel::movesTheTraceUnderASteadyStream()
{
    SensorDataPanel panel;
    panel.resize(900, 600);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    SensorDataModel model = sampleModel();
    panel.setModel(model);
    auto *card = panel.findChild<ValueCard *>();
    PaintCounter counter(card);
    QTRY_VERIFY(!panel.testAttribute(Qt::WA_PendingUpdate));
    // The values stand still: what is painted is the trace, once per step of its time, samples or not.
    for (qint64 now = 1000; now < 1000 + 10 * TraceBuffer::kBucketMs; ++now) {
        panel.appendSample(now, model.node, model.fields);
        panel.advance(now);
        QCoreApplication::sendPostedEvents();
    }
    QVERIFY2(counter.paints >= 10 && counter.paints <= 12, qPrintable(QString::number(counter.paints)));
}

void TestSensorDataPanel::paintsAnything_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(1, 1), QSize(120, 90), QSize(900, 600)}) {
        for (const float value : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                                  -std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min()})
            QTest::addRow("%g at %dx%d", double(value), size.width(), size.height()) << value << size;
    }
}

void TestSensorDataPanel::paintsAnything()
{
    QFETCH(float, value);
    QFETCH(QSize, size);
    ValueCard card({{QStringLiteral("X"), theme::kAxisX}, {QStringLiteral("|x|"), theme::kNorm, true}}, {});
    card.resize(size);
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    const float values[] = {value, value};
    for (qint64 now = 0; now < 6000; now += 10)
        card.appendTrace(now, values);
    card.setValues(values);
    QVERIFY(!card.grab().isNull());
    QVERIFY(card.texts().constFirst() != QStringLiteral("\u2013"));
}

QTEST_MAIN(TestSensorDataPanel)

#include "tst_sensor_data_panel.moc"
