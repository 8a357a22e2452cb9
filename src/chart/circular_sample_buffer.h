#pragma once

#include <QList>

/// Ring of the newest samples whose capacity can change while it holds data.
class CircularSampleBuffer
{
public:
    /// `capacity` is at least 1.
    explicit CircularSampleBuffer(int capacity = 1);

    /// Keeps the newest samples that fit, in their order. `capacity` is at least 1; smaller values are ignored.
    void setCapacity(int capacity);
    int capacity() const { return m_capacity; }
    /// Samples held, 0 to capacity().
    int count() const { return m_count; }
    bool isFull() const { return m_count == m_capacity; }

    /// Appends a sample; a full ring drops its oldest.
    void push(double value);
    /// The sample at `index`, 0 the oldest, count() - 1 the newest; 0.0 outside of that.
    double at(int index) const;
    /// All samples, oldest first.
    QList<double> toList() const;
    /// Clears the samples; the capacity stays.
    void clear();

private:
    QList<double> m_storage;
    int m_capacity = 0;
    int m_writeIndex = 0; ///< slot of the next sample
    int m_count = 0;
};
