#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// Ticks of one axis for a view: where they are, as fractions of its length from `min`, and their texts.
class ChartAxis : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChartAxis)
    QML_ELEMENT
    Q_PROPERTY(double min MEMBER m_min WRITE setMin NOTIFY ticksChanged)
    Q_PROPERTY(double max MEMBER m_max WRITE setMax NOTIFY ticksChanged)
    Q_PROPERTY(double length MEMBER m_length WRITE setLength NOTIFY ticksChanged)
    Q_PROPERTY(double spacing MEMBER m_spacing WRITE setSpacing NOTIFY ticksChanged)
    Q_PROPERTY(QString unit MEMBER m_unit WRITE setUnit NOTIFY ticksChanged)
    Q_PROPERTY(int count READ count NOTIFY ticksChanged)
    Q_PROPERTY(QList<double> positions READ positions NOTIFY ticksChanged)
    Q_PROPERTY(QStringList labels READ labels NOTIFY ticksChanged)
    Q_PROPERTY(int labelLength READ labelLength NOTIFY ticksChanged)

public:
    using QObject::QObject;

    /// Ends of the axis.
    void setMin(double min) { set(m_min, min); }
    void setMax(double max) { set(m_max, max); }
    /// Length of the axis and minimum distance between two ticks, in pixels.
    void setLength(double length) { set(m_length, length); }
    void setSpacing(double spacing) { set(m_spacing, spacing); }
    /// Appended to each text after a blank.
    void setUnit(const QString &unit);

    int count() const { return int(m_positions.size()); }
    QList<double> positions() const { return m_positions; }
    QStringList labels() const { return m_labels; }
    /// Characters of the longest text.
    int labelLength() const;

signals:
    void ticksChanged();

private:
    void set(double &member, double value);
    void update();

    double m_min = 0;
    double m_max = 1;
    double m_length = 0;
    double m_spacing = 50;
    QString m_unit;
    QList<double> m_positions;
    QStringList m_labels;
};
