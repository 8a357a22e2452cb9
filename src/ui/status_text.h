#pragma once

#include <QString>

#include "link/kv_uart_port.h"
#include "link/stream_state.h"

/// Texts of the main window's status displays, as pure functions of the known state.
namespace status_text {

/// The status bar's text. `infoDeferred`: reading the product information was given up because frames were flowing.
QString statusBar(const StreamSnapshot &snapshot, bool infoDeferred);

/// "T:%1KB/s(%2%) R:%3KB/s(%4%)": bytes per second divided by 1024, and line load in per cent.
QString traffic(const LinkStatistics &statistics);

/// Kind of frame that the stream carries, for display: layout and item tags.
QString protocol(const DecodedFrame &frame);

/// The connection panel: port and baud rate, then protocol and frame rate, or what is missing.
/// `streaming`: frames are arriving; `settled`: the port has been open long enough to expect some.
QString connectionPanel(const QString &portName, int baudRate, const DecodedFrame &frame, unsigned int frameRate,
                        bool streaming, bool settled);

/// The gateway's summary: its id and the number of nodes in its last batch.
QString gatewaySummary(quint8 gatewayId, qsizetype nodeCount);

} // namespace status_text
