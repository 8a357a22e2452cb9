#pragma once

#include <QList>
#include <QWidget>

#include "app/palette.h"

/// A row of captions with a value under each, on a card: the summary row and the angles. Cells share the spare width
/// equally.
class ValueStrip : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ValueStrip)

public:
    struct Cell
    {
        QString caption;
        QString unit;
        QColor Palette::*color; ///< of the value
        int characters = 8;     ///< that the layout reserves room for
    };

    explicit ValueStrip(QWidget *parent = nullptr);

    /// Replaces the cells; values are kept where their number stays the same.
    void setCells(const QList<Cell> &cells);
    /// Shows one text per cell; missing ones become a dash.
    void setTexts(const QStringList &texts);
    const QStringList &texts() const { return m_texts; }
    /// Lines "caption<TAB>text unit", for the clipboard.
    QStringList lines() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int cellWidth(const Cell &cell) const;

    QList<Cell> m_cells;
    QStringList m_texts;
};
