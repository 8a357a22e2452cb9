#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <limits>
#include <utility>

#include "app/palette.h"
#include "support/pixels.h"
#include "ui/sensor_data_panel.h"
#include "ui/value_card.h"

namespace {

SensorDataModel sampleModel()
{
    SensorDataModel model;
    model.node.time_ms = 61001;
    model.node.temperature = 24.5F;
    model.node.acc[0] = 1.0F;
    model.node.quat[0] = 1.0F;
    model.fields = SampleField::Acceleration;
    return model;
}

StreamSample sampleAt(qint64 streamMs, qint64 hostMs, float value)
{
    StreamSample sample;
    sample.snapshot.sample.time_ms = quint32(streamMs);
    std::fill_n(sample.snapshot.sample.acc, 3, std::numeric_limits<float>::quiet_NaN());
    sample.snapshot.sample.acc[0] = value;
    sample.fields = SampleField::Acceleration;
    sample.deviceMs = quint32(streamMs);
    sample.hostMs = hostMs;
    return sample;
}

bool isAbout(const QColor &p, const QColor &color)
{
    return qAbs(p.red() - color.red()) + qAbs(p.green() - color.green()) + qAbs(p.blue() - color.blue()) < 350;
}

/// Whether a pixel of about this colour is there; text and lines are antialiased, filled bars are not.
bool contains(const QImage &image, const QColor &color)
{
    return countPixels(image,
                       [&color](const QColor &p) {
                           return qAbs(p.red() - color.red()) + qAbs(p.green() - color.green())
                                      + qAbs(p.blue() - color.blue())
                                  < 24;
                       })
           > 0;
}

/// The panel on the screen.
struct ShownPanel : SensorDataPanel
{
    ShownPanel()
    {
        resize(900, 600);
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this));
    }
};

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

class TestSensorDataPanel : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheStreamCarries()
    {
        SensorDataPanel panel;
        const auto shows = [&panel](const char *text) { return panel.text().contains(QString::fromUtf8(text)); };
        SensorDataModel model = sampleModel();
        panel.setModel(model);
        for (const char *text :
             {"Acceleration X\t+1.000 G", "Angular velocity X\t\u2013 \u00B0/s", "Quaternion W\t\u2013"})
            QVERIFY2(shows(text), text);

        model.fields |= SampleFields(SampleField::Quaternion) | SampleField::Temperature | SampleField::Time;
        panel.setModel(model);
        for (const char *text : {"Quaternion W\t+1.0000", "Temperature\t24.5 \u00B0C", "Device time\t00:01:01.001"})
            QVERIFY2(shows(text), text);

        panel.clear();
        QVERIFY(shows("Acceleration X\t\u2013 G") && shows("Pressure"));
        panel.setSummaryVisible(false);
        panel.setModel(model);
        QVERIFY(!shows("Pressure"));
    }

    void paintsAxisColours()
    {
        ShownPanel panel;
        SensorDataModel model = sampleModel();
        std::fill_n(model.node.acc, 3, 0.5F);
        panel.setModel(model);
        const QImage shown = panel.grab().toImage();
        for (const QColor &color :
             {palette::kLight.axisX, palette::kLight.axisY, palette::kLight.axisZ, palette::kLight.norm})
            QVERIFY2(contains(shown, color), qPrintable(color.name()));
        model.node.acc[0] = -0.5F;
        panel.setModel(model);
        QVERIFY(panel.grab().toImage() != shown);
    }

    void oldNumbersCanBeRead()
    {
        ShownPanel panel;
        panel.setModel(sampleModel());
        const auto contrast = [&panel] { // of the darkest pixel among the numbers, which is in the middle of a stroke
            const QImage image = panel.findChild<ValueCard *>()->grab().toImage();
            double darkest = 1;
            for (int x = 50; x < 120; ++x) {
                for (int y = 40; y < 120; ++y) {
                    const auto linear = [](double c) {
                        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
                    };
                    const QColor p = image.pixelColor(x, y);
                    darkest = std::min(darkest, 0.2126 * linear(p.redF()) + 0.7152 * linear(p.greenF())
                                                    + 0.0722 * linear(p.blueF()));
                }
            }
            return 1.05 / (darkest + 0.05);
        };
        const double live = contrast();
        panel.setEnabled(false);
        const double old = contrast();
        QVERIFY2(old >= 4.5 && old < live / 2, qPrintable(QString::number(old)));
    }

    void movesTheTraceUnderASteadyStream()
    {
        ShownPanel panel;
        const SensorDataModel model = sampleModel();
        panel.setModel(model);
        PaintCounter counter(panel.findChild<ValueCard *>());
        QTRY_VERIFY(!panel.testAttribute(Qt::WA_PendingUpdate));
        // The values do not change: only the trace is painted, once per step of its time, with or without samples.
        for (qint64 now = 1000; now < 1000 + 10 * TraceBuffer::kBucketMs; ++now) {
            panel.appendSample(sampleAt(now, now, 0));
            panel.advance(now);
            QCoreApplication::sendPostedEvents();
        }
        QVERIFY2(counter.paints >= 10 && counter.paints <= 12, qPrintable(QString::number(counter.paints)));
    }

    /// A smooth motion gives a smooth line from edge to edge, however its samples arrive; and none where they are
    /// missing.
    void drawsTheTrace_data()
    {
        QTest::addColumn<double>("periodMs");
        QTest::addColumn<int>("lumpMs"); // samples arrive together this often
        QTest::addColumn<int>("silentMs");
        QTest::addColumn<StreamBreak>("brokenBy");
        QTest::newRow("400 samples/s") << 2.5 << 1 << 0 << StreamBreak::None;
        QTest::newRow("400 samples/s in lumps") << 2.5 << 16 << 0 << StreamBreak::None;
        QTest::newRow("20 samples/s") << 50.0 << 1 << 0 << StreamBreak::None;
        QTest::newRow("missing samples") << 2.5 << 16 << 300 << StreamBreak::None;
        QTest::newRow("restart") << 2.5 << 1 << 300 << StreamBreak::OutputStopped;
    }
    void drawsTheTrace()
    {
        QFETCH(double, periodMs);
        QFETCH(int, lumpMs);
        QFETCH(int, silentMs);
        QFETCH(StreamBreak, brokenBy);
        ShownPanel panel;
        panel.resize(900, 900);
        qint64 hostMs = 0;
        bool isAfter = false;
        for (double time = 5; time < 8000; time += periodMs) {
            if (silentMs > 0 && time > 5000 && time < 5000 + silentMs)
                continue;
            hostMs = (qint64(time) / lumpMs + 1) * lumpMs;
            StreamSample sample = sampleAt(qint64(time), hostMs, float(1.8 * std::sin(2 * M_PI * time / 1500)));
            if (brokenBy != StreamBreak::None)
                sample.deviceMs = 0; // no clock: the stream reports it
            if (time > 5000 && !std::exchange(isAfter, true))
                sample.brokenBy = brokenBy;
            panel.appendSample(sample);
        }
        panel.advance(hostMs);
        auto *valueCard = panel.findChild<ValueCard *>();
        const QImage card = valueCard->grab().toImage();
        QFont nameFont = valueCard->font();
        nameFont.setPointSizeF(nameFont.pointSizeF() * 0.85);
        const int names = QFontMetrics(nameFont).horizontalAdvance(u'W') + 4; // beside the ends of the lines
        constexpr int kEdge = 17;
        constexpr int kTraceHeight = 160;
        double before = -1;
        double stepBefore = 0;
        int empty = 0;
        int columns = 0;
        double roughest = 0;
        const int right = card.width() - kEdge - names - 3 - int(periodMs / 12); // its newest bucket is not full
        for (int x = kEdge; x < right; ++x) {
            double sum = 0;
            int count = 0;
            for (int y = card.height() - kEdge - kTraceHeight; y < card.height() - kEdge; ++y) {
                if (isAbout(card.pixelColor(x, y), palette::kLight.axisX)) {
                    sum += y;
                    ++count;
                }
            }
            if (count == 0) {
                ++empty;
                columns = 0;
                continue;
            }
            const double step = sum / count - before;
            if (++columns > 2)
                roughest = std::max(roughest, std::abs(step - stepBefore));
            stepBefore = step;
            before = sum / count;
        }
        const int pixelsSilent = silentMs * (card.width() - 2 * kEdge - names) / 5000;
        QVERIFY2(std::abs(empty - pixelsSilent) <= 5, qPrintable(QString::number(empty)));
        QVERIFY2(roughest < 3, qPrintable(QString::number(roughest)));
    }

    void paintsAnything()
    {
        using Limits = std::numeric_limits<float>;
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        for (const QSize size : {QSize(1, 1), QSize(120, 90), QSize(900, 600)}) {
            for (const float value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::max(), Limits::denorm_min()}) {
                ValueCard card({{QStringLiteral("X"), &Palette::axisX}, {QStringLiteral("|x|"), &Palette::norm, true}},
                               {});
                card.resize(size);
                const float values[] = {value, value};
                for (qint64 now = 0; now < 6000; now += 10)
                    card.appendTrace(now, values);
                card.setValues(values);
                QVERIFY(!card.grab().isNull());
                QVERIFY(card.texts().constFirst() != QStringLiteral("\u2013"));
            }
        }
    }
};

QTEST_MAIN(TestSensorDataPanel)
#include "tst_sensor_data_panel.moc"
