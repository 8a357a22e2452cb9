#pragma once

#include <QScrollArea>

/// Holds the content of a window, so that the window can be as small as the screen requires. As long as there is room
/// the area is transparent to the layout: its size hints are those of the content. Scroll bars appear where the content
/// needs more room than the screen has, or than the user gives it.
class ContentArea : public QScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ContentArea)

public:
    explicit ContentArea(QWidget *content, QWidget *parent = nullptr);

    /// Puts everything that `window` lays out into an area; for a main window its central widget.
    static ContentArea *wrap(QWidget *window);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Height at which all of the content can be seen in the present width.
    int neededHeight() const;

protected:
    bool event(QEvent *event) override;

private:
    QSize room() const;
};
