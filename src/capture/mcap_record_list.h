#pragma once

#include <QByteArrayView>

#include "capture/mcap_records.h"

/// Steps through records that lie one after the other in memory: the content of a chunk, a part of the summary.
class McapRecordList
{
public:
    explicit McapRecordList(QByteArrayView records) : m_records(records) {}

    /// To the next whole record; false at the end.
    bool next()
    {
        m_offset = m_end;
        const qsizetype left = m_records.size() - m_offset;
        if (left < mcap::kHeadSize)
            return false;
        m_head = mcap::decodeHead(m_records.sliced(m_offset));
        if (m_head.length > quint64(left - mcap::kHeadSize))
            return false;
        m_end = m_offset + mcap::kHeadSize + qsizetype(m_head.length);
        return true;
    }
    mcap::Kind kind() const { return m_head.kind; }
    /// Of the head.
    qsizetype offset() const { return m_offset; }
    QByteArrayView content() const { return m_records.sliced(m_offset + mcap::kHeadSize, qsizetype(m_head.length)); }
    /// Bytes at the end that are no whole record; once next() has returned false.
    qsizetype remainder() const { return m_records.size() - m_end; }

private:
    QByteArrayView m_records;
    mcap::Head m_head;
    qsizetype m_offset = 0;
    qsizetype m_end = 0;
};
