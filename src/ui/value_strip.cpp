#include "ui/value_strip.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

#include "app/palette.h"
#include "app/theme.h"
#include "app/value_format.h"
#include "ui/readout_accessible.h"

namespace {

constexpr int kSpacing = theme::kGrid / 2;

QString captionText(const ValueStrip::Cell &cell)
{
    return cell.unit.isEmpty() ? cell.caption : QStringLiteral("%1 (%2)").arg(cell.caption, cell.unit);
}

} // namespace

ValueStrip::ValueStrip(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_OpaquePaintEvent); // otherwise everything beneath is repainted each time, too
    readout_accessible::install();
}

void ValueStrip::setCells(const QList<Cell> &cells)
{
    m_cells = cells;
    m_texts.resize(cells.size(), value_format::absent());
    updateGeometry();
    update();
}

void ValueStrip::setTexts(const QStringList &texts)
{
    QStringList all = texts;
    all.resize(m_cells.size(), value_format::absent());
    if (all == m_texts)
        return;
    m_texts = all;
    update();
}

QStringList ValueStrip::lines() const
{
    QStringList lines;
    for (qsizetype i = 0; i < m_cells.size(); ++i)
        lines.append(
            QStringLiteral("%1\t%2 %3").arg(m_cells.at(i).caption, m_texts.at(i), m_cells.at(i).unit).trimmed());
    return lines;
}

int ValueStrip::cellWidth(const Cell &cell) const
{
    const QFontMetrics valueMetrics(theme::fixedPitchFont(font().pointSizeF() + 2));
    return std::max(fontMetrics().horizontalAdvance(captionText(cell)),
                    valueMetrics.horizontalAdvance(QString(cell.characters, u'0')))
           + 2 * theme::kGrid;
}

QSize ValueStrip::sizeHint() const
{
    int total = 0;
    for (const Cell &cell : m_cells)
        total += cellWidth(cell);
    const QFontMetrics valueMetrics(theme::fixedPitchFont(font().pointSizeF() + 2));
    return {total, fontMetrics().height() + kSpacing + valueMetrics.height()};
}

void ValueStrip::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

void ValueStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), theme::colors().surface);
    if (m_cells.isEmpty())
        return;
    const QFont valueFont = theme::fixedPitchFont(font().pointSizeF() + 2);
    const int captionHeight = fontMetrics().height();
    const double spare = double(width() - sizeHint().width()) / double(m_cells.size());
    double left = 0;
    for (qsizetype i = 0; i < m_cells.size(); ++i) {
        const QRectF cell(left, 0, cellWidth(m_cells.at(i)) + spare, height());
        left = cell.right();
        painter.setFont(font());
        painter.setPen(theme::colors().textSecondary);
        painter.drawText(QRectF(cell.left(), 0, cell.width(), captionHeight), Qt::AlignCenter,
                         captionText(m_cells.at(i)));
        painter.setFont(valueFont);
        const bool isAbsent = m_texts.at(i) == value_format::absent();
        painter.setPen(isAbsent || !isEnabled() ? theme::colors().textDisabled : theme::colors().*m_cells.at(i).color);
        painter.drawText(cell.adjusted(0, captionHeight + kSpacing, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                         m_texts.at(i));
    }
}
