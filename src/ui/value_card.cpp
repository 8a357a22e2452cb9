#include "ui/value_card.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

#include "app/palette.h"
#include "app/theme.h"
#include "app/value_format.h"
#include "chart/axis_ticks.h"
#include "chart/label_places.h"
#include "ui/readout_accessible.h"

namespace {

constexpr int kPadding = 2 * theme::kGrid;
constexpr int kBarHeight = 5;
constexpr int kTraceGap = theme::kGrid + theme::kGrid / 2;
constexpr double kRoundingMargin = 1.001;
constexpr double kMaxRange = 1e12;
constexpr int kTraceNameGap = 4;
constexpr double kTraceNameScale = 0.85;
constexpr int kMinTraceHeight = 36;
constexpr int kMaxTraceHeight = 160;

} // namespace

ValueCard::ValueCard(QList<Channel> channels, Format format, QWidget *parent)
    : QWidget(parent), m_channels(std::move(channels)), m_format(format)
{
    Q_ASSERT(m_channels.size() <= TraceBuffer::kChannels);
    setAttribute(Qt::WA_OpaquePaintEvent); // otherwise everything beneath is repainted each time, too
    readout_accessible::install();
    updateMetrics();
    setAbsent();
}

void ValueCard::setTitle(const QString &title, const QString &unit)
{
    m_title = title;
    m_unit = unit;
    setAccessibleName(title);
    update();
}

void ValueCard::setValues(std::span<const float> values)
{
    QStringList texts;
    texts.reserve(m_channels.size());
    for (qsizetype i = 0; i < m_channels.size(); ++i) {
        const float value = size_t(i) < values.size() ? values[size_t(i)] : 0.0F;
        m_values[size_t(i)] = value;
        texts.append(m_channels.at(i).isNorm ? value_format::number(value, m_format.decimals)
                                             : value_format::signedNumber(value, m_format.decimals));
    }
    m_isAbsent = false;
    showTexts(texts);
}

void ValueCard::setAbsent()
{
    m_isAbsent = true;
    m_values = {};
    showTexts(QStringList(m_channels.size(), value_format::absent()));
}

void ValueCard::appendTrace(qint64 nowMs, std::span<const float> values, bool isBroken)
{
    m_trace.append(nowMs, values, isBroken);
}

void ValueCard::advance(qint64 nowMs)
{
    m_trace.advance(nowMs);
    if (m_trace.newest() == m_shownBucket)
        return;
    m_shownBucket = m_trace.newest();
    update(traceArea());
}

void ValueCard::clear()
{
    m_trace.clear();
    setAbsent();
    update();
}

void ValueCard::showTexts(const QStringList &texts)
{
    if (texts == m_texts)
        return;
    m_texts = texts;
    update(rowsArea());
}

QRect ValueCard::rowsArea() const
{
    return {kPadding, kPadding + headerHeight(), width() - 2 * kPadding, int(m_channels.size()) * m_rowHeight};
}

QRect ValueCard::traceArea() const
{
    QRect area = rect().adjusted(kPadding, rowsArea().bottom() + 1 + kTraceGap, -kPadding, -kPadding);
    if (area.height() < kMinTraceHeight)
        return {};
    if (area.height() > kMaxTraceHeight)
        area.setTop(area.bottom() - kMaxTraceHeight);
    return area;
}

/// Full scale of bars and trace: 1-2-5 steps above the largest value of the last seconds.
double ValueCard::range() const
{
    const TraceBuffer::Extent extent = m_trace.total();
    double magnitude = extent.isEmpty() ? 0.0 : std::max(std::abs(extent.low), std::abs(extent.high));
    for (const float value : m_values) {
        if (std::isfinite(value))
            magnitude = std::max(magnitude, double(std::abs(value)));
    }
    // A unit quaternion may be a rounding error longer than 1.
    const double wanted = std::min(magnitude / kRoundingMargin, kMaxRange);
    return wanted > m_format.minimumRange ? axis_ticks::step(wanted, 1) : m_format.minimumRange;
}

QStringList ValueCard::lines() const
{
    QStringList lines;
    for (qsizetype i = 0; i < m_channels.size(); ++i) {
        lines.append(
            QStringLiteral("%1 %2\t%3 %4").arg(m_title, m_channels.at(i).label, m_texts.at(i), m_unit).trimmed());
    }
    return lines;
}

void ValueCard::updateMetrics()
{
    m_valueFont = theme::fixedPitchFont(font().pointSizeF() + 2);
    const QFontMetrics valueMetrics(m_valueFont);
    QFont labelFont = font();
    labelFont.setBold(true);
    const QFontMetrics labelMetrics(labelFont);
    m_rowHeight = std::max(valueMetrics.height(), labelMetrics.height()) + 4;
    m_labelWidth = 0;
    for (const Channel &channel : m_channels)
        m_labelWidth = std::max(m_labelWidth, labelMetrics.horizontalAdvance(channel.label));
    const int characters = 1 + m_format.integerDigits + 1 + m_format.decimals;
    m_valueWidth = valueMetrics.horizontalAdvance(QString(characters, u'0'));
    updateGeometry();
}

void ValueCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateMetrics();
    QWidget::changeEvent(event);
}

int ValueCard::headerHeight() const
{
    return fontMetrics().height() + theme::kGrid;
}

QSize ValueCard::minimumSizeHint() const
{
    const int rows = int(m_channels.size());
    return {2 * kPadding + m_labelWidth + theme::kGrid + m_valueWidth + 6 * theme::kGrid,
            kPadding + headerHeight() + rows * m_rowHeight + kPadding};
}

QSize ValueCard::sizeHint() const
{
    return minimumSizeHint() + QSize(12 * theme::kGrid, kMinTraceHeight + theme::kGrid);
}

void ValueCard::paintEvent(QPaintEvent *event)
{
    // Values and trace change many times a second: only what changed is drawn.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect header(0, 0, width(), rowsArea().top());
    if (event->rect().intersects(header) || !rect().adjusted(1, 1, -1, -1).contains(event->rect())) {
        painter.fillRect(rect(), theme::colors().background);
        painter.setPen(theme::colors().line);
        painter.setBrush(theme::colors().surface);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::kGrid, theme::kGrid);
        paintHeader(painter);
    } else {
        painter.fillRect(event->rect(), theme::colors().surface);
    }

    const double fullScale = range();
    if (event->region().intersects(rowsArea())) {
        QRect row = rowsArea();
        row.setHeight(m_rowHeight);
        for (int i = 0; i < int(m_channels.size()); ++i, row.translate(0, m_rowHeight))
            paintRow(painter, i, row, fullScale);
    }
    if (event->region().intersects(traceArea()))
        paintTrace(painter, traceArea(), fullScale);
}

void ValueCard::paintHeader(QPainter &painter) const
{
    const QRect area(kPadding, kPadding - 2, width() - 2 * kPadding, fontMetrics().height());
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    painter.setPen(theme::colors().textSecondary);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, m_title);
    painter.setFont(font());
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, m_unit);
}

void ValueCard::paintRow(QPainter &painter, int row, const QRect &area, double range) const
{
    const Channel &channel = m_channels.at(row);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(theme::colors().*channel.color);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, channel.label);

    QRect valueArea(area.left() + m_labelWidth + theme::kGrid, area.top(), m_valueWidth, area.height());
    const QString &text = m_texts.at(row);
    const int textWidth = QFontMetrics(m_valueFont).horizontalAdvance(text);
    if (textWidth > valueArea.width()) // a value beyond the layout's digits takes the bar's place
        valueArea.setWidth(std::min(textWidth, area.right() - valueArea.left()));
    painter.setFont(m_valueFont);
    painter.setPen(m_isAbsent || !isEnabled() ? theme::colors().textDisabled : theme::colors().text);
    painter.drawText(valueArea, Qt::AlignRight | Qt::AlignVCenter, text);

    const int barLeft = valueArea.right() + 2 * theme::kGrid;
    const QRectF ground(barLeft, area.center().y() - kBarHeight / 2.0 + 0.5, area.right() + 1 - barLeft, kBarHeight);
    if (ground.width() < 3 * theme::kGrid)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::colors().background);
    painter.drawRoundedRect(ground, kBarHeight / 2.0, kBarHeight / 2.0);
    const float value = m_values[size_t(row)];
    if (m_isAbsent || !std::isfinite(value))
        return;
    const double fraction = std::clamp(double(value) / range, -1.0, 1.0);
    const double zero = channel.isNorm ? ground.left() : ground.center().x();
    const double full = channel.isNorm ? ground.width() : ground.width() / 2.0;
    QRectF bar(zero, ground.top(), fraction * full, ground.height());
    painter.setBrush(isEnabled() ? theme::colors().*channel.color : theme::colors().textDisabled);
    painter.drawRect(bar.normalized());
}

void ValueCard::paintTrace(QPainter &painter, const QRect &whole, double range) const
{
    QFont nameFont = font();
    nameFont.setPointSizeF(nameFont.pointSizeF() * kTraceNameScale);
    const QFontMetrics names(nameFont);
    const QRect area = whole.adjusted(0, 0, -names.horizontalAdvance(u'W') - kTraceNameGap, 0);
    QList<double> ends(m_channels.size(), std::numeric_limits<double>::quiet_NaN());
    painter.setPen(QPen(theme::colors().line, 1));
    const double middle = area.center().y() + 0.5;
    painter.drawLine(QPointF(area.left(), middle), QPointF(area.right(), middle));

    const double msStep = double(area.width() - 1) / (TraceBuffer::kBuckets * TraceBuffer::kBucketMs);
    const double yScale = (area.height() / 2.0 - 1.0) / range;
    const auto yOf = [&](float value) { return middle - std::clamp(double(value), -range, range) * yScale; };
    QPolygonF line;
    line.reserve(2 * TraceBuffer::kBuckets);
    const auto endLine = [&] {
        if (line.size() == 1) // a lone sample between two gaps
            painter.drawPoint(line.constFirst());
        else
            painter.drawPolyline(line);
        line.clear();
    };
    for (int channel = 0; channel < int(m_channels.size()); ++channel) {
        if (m_channels.at(channel).isNorm)
            continue;
        painter.setPen(QPen(theme::colors().*m_channels.at(channel).color,
                            1)); // a wider one would be stroked, at many times the cost
        for (int age = TraceBuffer::kBuckets - 1; age >= 0; --age) {
            const TraceBuffer::Extent &extent = m_trace.at(channel, age);
            if (extent.isBroken)
                endLine();
            if (extent.isEmpty())
                continue;
            const int bucketMs = (TraceBuffer::kBuckets - 1 - age) * TraceBuffer::kBucketMs;
            const QPointF low(area.left() + (bucketMs + extent.lowMs) * msStep, yOf(extent.low));
            const QPointF high(area.left() + (bucketMs + extent.highMs) * msStep, yOf(extent.high));
            line.append(extent.highMs < extent.lowMs ? high : low);
            if (extent.high > extent.low)
                line.append(extent.highMs < extent.lowMs ? low : high);
        }
        if (!line.isEmpty())
            ends[channel] = line.constLast().y() - area.top();
        endLine();
    }
    // Colour is not all that distinguishes the lines: their names stand at the ends.
    painter.setFont(nameFont);
    const QList<double> places = labelPlaces(ends, area.height(), names.ascent());
    for (int channel = 0; channel < int(m_channels.size()); ++channel) {
        if (std::isnan(places.at(channel)))
            continue;
        painter.setPen(theme::colors().*m_channels.at(channel).color);
        painter.drawText(QPointF(area.right() + kTraceNameGap, area.top() + places.at(channel) + names.ascent() * 0.4),
                         m_channels.at(channel).label);
    }
}
