#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>

/// A line icon in one colour, drawn on a grid of 16 units and therefore sharp at every size and scale: `Icon` of the
/// module KVCenter.Controls. Names: "play", "pause", "reset", "picture", "save", "cursors", "filter", "maximize",
/// "restore", "close". An unknown name draws nothing.
class IconItem : public QQuickPaintedItem
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IconItem)
    QML_NAMED_ELEMENT(Icon)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit IconItem(QQuickItem *parent = nullptr);

    const QString &name() const { return m_name; }
    void setName(const QString &name);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    void paint(QPainter *painter) override;

signals:
    void nameChanged();
    void colorChanged();

private:
    QString m_name;
    QColor m_color; ///< set by every user
};
