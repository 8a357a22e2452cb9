#include "app/palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr double kSeen = 3.0;

constexpr QColor rgb(unsigned int value)
{
    return {int(value >> 16U), int(value >> 8U & 0xFFU), int(value & 0xFFU)};
}

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

// clang-format off
constinit const Palette palette::kLight{
    .background = rgb(0xF3F4F6), .surface = rgb(0xFFFFFF), .surfaceAlt = rgb(0xF9FAFB), .pressed = rgb(0xE5E7EB),
    .accentSoft = rgb(0xEFF6FF), .accentFaint = rgb(0xBFDBFE),
    .goodSoft = rgb(0xF0FDF4), .warningSoft = rgb(0xFFFBEB), .badSoft = rgb(0xFEF2F2),
    .toolTip = rgb(0x111827),

    .line = rgb(0xE5E7EB), .border = rgb(0xD1D5DB), .borderStrong = rgb(0x868D9A), .focusOnAccent = rgb(0x1E3A8A),

    .text = rgb(0x111827), .textSecondary = rgb(0x4B5563), .textDisabled = rgb(0x656C79), .accentText = rgb(0x1D4ED8),
    .toolTipText = rgb(0xFFFFFF),
    .good = rgb(0x15803D), .warning = rgb(0xB45309), .bad = rgb(0xB91C1C),

    .accent = rgb(0x2563EB), .accentPressed = rgb(0x1D4ED8), .onAccent = rgb(0xFFFFFF), .onAccentFaint = rgb(0x1E3A8A),
    .recording = rgb(0xDC2626),

    .axisX = rgb(0xAB221D), .axisY = rgb(0x0D8B4D), .axisZ = rgb(0x4153AF), .axisW = rgb(0x6B7280), .norm = rgb(0x111827),

    .curves = {rgb(0x008CFC), rgb(0x700000), rgb(0xFC0000), rgb(0x3800C4), rgb(0x8C70A8), rgb(0x00001C), rgb(0xC47070),
               rgb(0x540070)},

    .connected = rgb(0x90EE90), .onConnected = rgb(0x111827),

    .pickerBackground = rgb(0xEDF4FB), .pickerBorder = rgb(0xD6E0EC), .pickerHover = rgb(0x93C5FD),
    .pickerMark = rgb(0xDBEAFE),

    .skyTop = rgb(0x3F88C8), .skyHorizon = rgb(0x5BA3E0), .groundHorizon = rgb(0x9B6B3F), .groundBottom = rgb(0x7B522E),
    .aircraft = rgb(0xF59E0B), .outline = rgb(0x111827), .rim = rgb(0x374151), .dial = rgb(0xFFFFFF),
    .idleUpper = rgb(0xE5E7EB), .idleLower = rgb(0xD8DBE0), .idleMark = rgb(0x7B828F),

    .sceneLight = rgb(0x868686), .sceneGrid = rgb(0xD8DCE3), .sceneNorth = rgb(0x4B5563), .sceneBody = rgb(0xAEBACB),
};

constinit const Palette palette::kDark{
    .isDark = true,
    .background = rgb(0x14171B), .surface = rgb(0x1D2126), .surfaceAlt = rgb(0x262B32), .pressed = rgb(0x30363F),
    .accentSoft = rgb(0x1B2C4A), .accentFaint = rgb(0x27395A),
    .goodSoft = rgb(0x12291C), .warningSoft = rgb(0x2E2410), .badSoft = rgb(0x341A1B),
    .toolTip = rgb(0xE8EAED),

    .line = rgb(0x30363F), .border = rgb(0x474E59), .borderStrong = rgb(0x717B89), .focusOnAccent = rgb(0xC9DBFF),

    .text = rgb(0xE8EAED), .textSecondary = rgb(0xB6BDC8), .textDisabled = rgb(0x949CA9), .accentText = rgb(0x9DBDFF),
    .toolTipText = rgb(0x14171B),
    .good = rgb(0x5CCB86), .warning = rgb(0xF0A94A), .bad = rgb(0xFF8A80),

    .accent = rgb(0x5B93FF), .accentPressed = rgb(0x80ADFF), .onAccent = rgb(0x0F1216), .onAccentFaint = rgb(0xA9C0E8),
    .recording = rgb(0xFF6B61),

    .axisX = rgb(0xF2726B), .axisY = rgb(0x43C383), .axisZ = rgb(0x8FA2FA), .axisW = rgb(0xA5ADB9), .norm = rgb(0xE8EAED),

    .curves = {rgb(0x1C8CC4), rgb(0xFCC400), rgb(0xE01C00), rgb(0x00FC8C), rgb(0xA8A8A8), rgb(0xFCFCFC), rgb(0xC45454),
               rgb(0xA81CFC)},

    .connected = rgb(0x1F5A2E), .onConnected = rgb(0xE8EAED),

    .pickerBackground = rgb(0x14171B), .pickerBorder = rgb(0x474E59), .pickerHover = rgb(0x5B93FF),
    .pickerMark = rgb(0x27395A),

    .skyTop = rgb(0x2F6DA6), .skyHorizon = rgb(0x4A8BC4), .groundHorizon = rgb(0x865B34), .groundBottom = rgb(0x674426),
    .aircraft = rgb(0xF9B233), .outline = rgb(0x0B0D10), .rim = rgb(0x5B6573), .dial = rgb(0xFFFFFF),
    .idleUpper = rgb(0x2E343C), .idleLower = rgb(0x262B32), .idleMark = rgb(0x949CA9),

    .sceneLight = rgb(0x868686), .sceneGrid = rgb(0x343B45), .sceneNorth = rgb(0xB6BDC8), .sceneBody = rgb(0xAEBACB),
};
// clang-format on

QColor Palette::drawn(const QColor &natural) const
{
    if (!isDark)
        return natural;
    const Palette &light = palette::kLight;
    const std::array<std::pair<QColor, QColor>, 6> own{{{light.axisX, axisX},
                                                        {light.axisY, axisY},
                                                        {light.axisZ, axisZ},
                                                        {rgb(0x808080), axisW},
                                                        {light.norm, norm},
                                                        {QColor(Qt::black), norm}}};
    for (const auto &[color, mine] : own) {
        if (color.rgb() == natural.rgb())
            return mine;
    }
    for (size_t i = 0; i < curves.size(); ++i) {
        if (light.curves[i].rgb() == natural.rgb())
            return curves[i];
    }
    QColor seen = natural;
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    seen.getHslF(&hue, &saturation, &lightness);
    while (palette::contrast(seen, surface) < kSeen && lightness < 1) {
        lightness = std::min(1.0F, lightness + 0.05F);
        seen.setHslF(std::max(0.0F, hue), saturation, lightness);
    }
    return seen;
}

double palette::contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}
