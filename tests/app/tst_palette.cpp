#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>

#include "app/palette.h"

namespace {

using Role = QColor Palette::*;

struct Row
{
    const char *what;
    Role color;
    Role ground;
    double least;
};

constexpr double kText = 4.5;
constexpr double kMark = 3.0;

QList<Row> rows()
{
    QList<Row> list;
    const auto add = [&list](const char *what, std::initializer_list<Role> colors, std::initializer_list<Role> grounds,
                             double least) {
        for (const Role color : colors) {
            for (const Role ground : grounds)
                list += {what, color, ground, least};
        }
    };
    using P = Palette;
    add("text", {&P::text, &P::textSecondary, &P::textDisabled},
        {&P::background, &P::surface, &P::surfaceAlt, &P::accentSoft, &P::goodSoft, &P::warningSoft, &P::badSoft},
        kText);
    add("verdict", {&P::good, &P::warning, &P::bad}, {&P::background, &P::surface, &P::surfaceAlt}, kText);
    add("verdict on its ground", {&P::good}, {&P::goodSoft}, kText);
    add("verdict on its ground", {&P::warning}, {&P::warningSoft}, kText);
    add("verdict on its ground", {&P::bad}, {&P::badSoft}, kText);
    add("choice", {&P::accentText}, {&P::accentSoft, &P::surface, &P::background, &P::pickerMark}, kText);
    add("primary", {&P::onAccent}, {&P::accent, &P::accentPressed}, kText);
    add("primary, not available", {&P::onAccentFaint}, {&P::accentFaint}, kText);
    add("tool tip", {&P::toolTipText}, {&P::toolTip}, kText);
    add("connected", {&P::onConnected, &P::text}, {&P::connected}, kText);
    add("first question", {&P::text, &P::textSecondary}, {&P::pickerBackground}, kText);
    add("focus, light, edge", {&P::accent, &P::recording, &P::borderStrong}, {&P::surface}, kMark);
    add("curve, number", {&P::axisX, &P::axisY, &P::axisZ, &P::axisW, &P::norm},
        {&P::background, &P::surface, &P::surfaceAlt, &P::accentSoft}, kMark);
    add("indicator", {&P::idleMark}, {&P::surface, &P::idleUpper}, kMark);
    add("indicator", {&P::rim}, {&P::surface}, 2.5);
    add("indicator", {&P::dial}, {&P::skyTop, &P::groundBottom, &P::groundHorizon}, kMark);
    add("scene", {&P::sceneNorth}, {&P::surface}, kMark);
    return list;
}

} // namespace

class TestPalette : public QObject
{
    Q_OBJECT

private slots:
    void everythingCanBeRead()
    {
        QStringList tooFaint;
        for (const Palette *colors : {&palette::kLight, &palette::kDark}) {
            for (const Row &row : rows()) {
                const QColor color = colors->*row.color;
                const QColor ground = colors->*row.ground;
                const double contrast = palette::contrast(color, ground);
                if (contrast < row.least)
                    tooFaint += QStringLiteral("%1: %2 on %3 is %4")
                                    .arg(QLatin1String(row.what), color.name(), ground.name())
                                    .arg(contrast, 0, 'f', 2);
            }
        }
        QVERIFY2(tooFaint.isEmpty(), qPrintable(tooFaint.join(u'\n')));
        QVERIFY(std::abs(palette::contrast(Qt::black, Qt::white) - 21) < 1e-9);
    }

    /// The curves of many nodes can be distinguished with every kind of colour vision: at least 20 apart in CIE Lab,
    /// where 2 is a visible difference, also as the three kinds of dichromats see them.
    void curvesAreDistinct()
    {
        using Matrix = std::array<std::array<double, 3>, 3>;
        static constexpr std::array<Matrix, 4> kVision{
            {{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
             {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
             {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
             {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}}};
        static constexpr Matrix kXyz{
            {{0.4339, 0.3762, 0.1899}, {0.2126, 0.7152, 0.0722}, {0.0177, 0.1095, 0.8728}}}; // of white, 1 each
        const auto times = [](const Matrix &m, const std::array<double, 3> &v) {
            std::array<double, 3> out{};
            for (size_t i = 0; i < 3; ++i)
                out[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
            return out;
        };
        const auto lab = [&](const QColor &color, const Matrix &vision) {
            const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
            auto seen = times(vision, {linear(color.redF()), linear(color.greenF()), linear(color.blueF())});
            for (double &c : seen)
                c = std::clamp(c, 0.0, 1.0);
            auto f = times(kXyz, seen);
            for (double &c : f)
                c = c > 0.008856 ? std::cbrt(c) : 7.787 * c + 16.0 / 116;
            return std::array{116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
        };
        for (const Palette *colors : {&palette::kLight, &palette::kDark}) {
            for (size_t i = 0; i < colors->curves.size(); ++i) {
                QVERIFY(palette::contrast(colors->curves[i], colors->surface) >= kMark);
                QCOMPARE(colors->drawn(palette::kLight.curves[i]), colors->curves[i]);
                for (size_t k = 0; k < i; ++k) {
                    for (const Matrix &vision : kVision) {
                        const auto a = lab(colors->curves[i], vision);
                        const auto b = lab(colors->curves[k], vision);
                        const double apart = std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
                        QVERIFY2(apart > 20, qPrintable(QStringLiteral("%1 %2").arg(i).arg(k)));
                    }
                }
            }
        }
    }

    /// The inherent colours of quantities: unchanged in the light palette, visible in the dark one, and still distinct.
    void naturalColorsAreSeen()
    {
        const QList<QColor> natural{{0xAB, 0x22, 0x1D}, {0x0D, 0x8B, 0x4D}, {0x41, 0x53, 0xAF},
                                    {0, 0, 0},          {0x80, 0x80, 0x80}, {0x10, 0x10, 0x60}};
        QSet<QRgb> shown;
        for (const QColor &color : natural) {
            QCOMPARE(palette::kLight.drawn(color), color);
            const QColor dark = palette::kDark.drawn(color);
            QVERIFY2(palette::contrast(dark, palette::kDark.surface) >= 3, qPrintable(color.name()));
            shown.insert(dark.rgb());
        }
        QCOMPARE(shown.size(), natural.size());
        QCOMPARE(palette::kDark.drawn({0xFF, 0xE0, 0x40}), QColor(0xFF, 0xE0, 0x40)); // is visible as it is
    }
};

QTEST_APPLESS_MAIN(TestPalette)
#include "tst_palette.moc"
