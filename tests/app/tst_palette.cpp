#include <QTest>

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
