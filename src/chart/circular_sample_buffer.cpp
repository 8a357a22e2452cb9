#include "chart/circular_sample_buffer.h"

#include <algorithm>

CircularSampleBuffer::CircularSampleBuffer(int capacity)
{
    setCapacity(std::max(capacity, 1));
}

void CircularSampleBuffer::setCapacity(int capacity)
{
    if (capacity == m_capacity || capacity < 1)
        return;
    QList<double> storage(capacity, 0.0);
    const int keep = std::min(m_count, capacity);
    for (int i = 0; i < keep; ++i)
        storage[i] = at(m_count - keep + i);
    m_storage = std::move(storage);
    m_capacity = capacity;
    m_count = keep;
    m_writeIndex = keep % capacity;
}

void CircularSampleBuffer::push(double value)
{
    m_storage[m_writeIndex] = value;
    m_writeIndex = (m_writeIndex + 1) % m_capacity;
    m_count = std::min(m_count + 1, m_capacity);
}

double CircularSampleBuffer::at(int index) const
{
    if (index < 0 || index >= m_count)
        return 0.0;
    return m_storage.at((m_writeIndex - m_count + index + m_capacity) % m_capacity);
}

QList<double> CircularSampleBuffer::toList() const
{
    QList<double> list(m_count);
    for (int i = 0; i < m_count; ++i)
        list[i] = at(i);
    return list;
}

void CircularSampleBuffer::clear()
{
    m_writeIndex = 0;
    m_count = 0;
}
