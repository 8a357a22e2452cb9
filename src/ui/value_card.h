#pragma once

#include <QList>
#include <QWidget>

#include <array>
#include <span>

#include "app/palette.h"
#include "ui/trace_buffer.h"

/// A card of the numeric panel: title and unit, up to four values with their axis colours and a bar each, and a trace
/// of the last seconds where the card is tall enough. Painted as one widget, because it changes fifty times a second.
class ValueCard : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ValueCard)

public:
    struct Channel
    {
        QString label;
        QColor Palette::*color;
        bool isNorm = false; ///< never negative: shown without a sign, its bar starts at the left
    };
    struct Format
    {
        int decimals = 3;
        int integerDigits = 2;   ///< digits before the point that the layout reserves room for
        double minimumRange = 1; ///< full scale of bars and trace while the values are smaller
    };

    ValueCard(QList<Channel> channels, Format format, QWidget *parent = nullptr);

    void setTitle(const QString &title, const QString &unit);

    /// Shows one value per channel.
    void setValues(std::span<const float> values);
    /// Shows a dash per channel: the stream does not carry this quantity.
    void setAbsent();
    /// Adds a sample to the trace; it is painted with the next advance(). `isBroken`: samples before it are missing.
    void appendTrace(qint64 nowMs, std::span<const float> values, bool isBroken = false);
    /// Advances the trace with time.
    void advance(qint64 nowMs);
    /// Resets to dashes and an empty trace.
    void clear();

    /// The texts shown, one per channel.
    const QStringList &texts() const { return m_texts; }
    /// Lines "title label<TAB>text unit", for the clipboard.
    QStringList lines() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateMetrics();
    void showTexts(const QStringList &texts);
    int headerHeight() const;
    QRect rowsArea() const;
    QRect traceArea() const; ///< empty where the card is not tall enough for a trace
    double range() const;
    void paintHeader(QPainter &painter) const;
    void paintRow(QPainter &painter, int row, const QRect &whole, double range) const;
    void paintTrace(QPainter &painter, const QRect &area, double range) const;

    QList<Channel> m_channels;
    Format m_format;
    QString m_title;
    QString m_unit;
    QStringList m_texts;
    std::array<float, TraceBuffer::kChannels> m_values{};
    bool m_isAbsent = true;
    TraceBuffer m_trace;
    qint64 m_shownBucket = 0; ///< newest bucket when the trace was last repainted

    QFont m_valueFont;
    int m_rowHeight = 0;
    int m_labelWidth = 0;
    int m_valueWidth = 0;
};
