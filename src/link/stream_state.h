#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

#include "link/node_data.h"

/// The kind of link on the open port.
enum class TransportRole : quint32 {
    DirectSingleNode = 0,
    WirelessGateway = 1,
    RemoteWirelessNode = 2,
    Unknown = 3,
};

namespace product_profile {
/// Text of a role for logs and files: "DirectSingleNode", "WirelessGateway", "RemoteWirelessNode", else "Unknown".
QString toString(TransportRole role);
} // namespace product_profile

/// The one description of the stream's state that status displays bind to.
struct StreamSnapshot
{
    bool link_connected = false;           ///< the serial link is open
    bool has_frame_items = false;          ///< the last frame carried at least one data item
    bool product_info_ready = false;       ///< the device's product information has been read
    bool product_profile_resolved = false; ///< a known product was recognised
    TransportRole transport_role = TransportRole::Unknown;
    int frame_family = frame_family::None; ///< family of the last frame
    int selected_node_index = 0;           ///< index of the selected node in the last frame's node list
    QList<quint8> node_ids;                ///< ids of the last frame's nodes, in order
    quint32 measured_frame_rate = 0;       ///< payloads per second, measured by the port worker
    quint64 seq = 0;                       ///< seq of the last frame
    quint8 gwid = 0;                       ///< gateway id of the last frame
    quint32 gw_ts_ms = 0;                  ///< gateway time stamp of the last frame
    bool has_selected_node = false;        ///< a selected node exists
};

Q_DECLARE_METATYPE(StreamSnapshot)
