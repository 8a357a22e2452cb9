#pragma once

#include <QByteArray>
#include <QObject>

#include "link/node_data.h"

/// Turns the payload of one good data packet into one DecodedFrame. A payload is a sequence of data items, each
/// starting with a one-byte tag: a single module sends a full record (0x91), a compact record (0x93) or several small
/// items that together describe one sample; a gateway sends one batch (0x62, 0x63) with the records of many radio
/// nodes.
///
/// Never fails: unknown bytes are skipped one at a time, short items leave zeros or earlier values. Only the frame
/// counter carries over from one payload to the next. Main thread only.
class ImuParser : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ImuParser)

public:
    explicit ImuParser(QObject *parent = nullptr);

    /// Decodes one payload. Every call, even with an empty payload, uses one sequence number.
    DecodedFrame parseFrame(const QByteArray &payload);

private:
    quint64 m_frameCounter = 1;
};
