#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>

/// One sample of one node, in the units that the views show and the recorder writes. A plain value: it crosses threads
/// by copy. A field that the stream does not carry is 0.
struct node_data_t
{
    quint8 id = 0;            ///< module id, or radio node id in a gateway batch
    float temperature = 0;    ///< degrees Celsius
    quint32 reserved_u32 = 0; ///< always 0 from the parser
    quint32 time_ms = 0;      ///< device time stamp in milliseconds; wraps at 2^32
    float acc[3] = {};        ///< acceleration X, Y, Z in G
    float gyr[3] = {};        ///< angular rate X, Y, Z in deg/s
    float mag[3] = {};        ///< magnetic field X, Y, Z in uT
    float pressure = 0;       ///< air pressure in Pa
    float roll = 0;           ///< Euler angles in degrees
    float pitch = 0;
    float yaw = 0;
    float quat[4] = {};  ///< attitude quaternion W, X, Y, Z
    float extra[6] = {}; ///< no item fills these
};

/// A sample with what is known about its attitude.
struct NodeSnapshot
{
    node_data_t sample;
    bool has_quat = false;  ///< the sample's quaternion is valid
    bool has_euler = false; ///< the sample's Euler angles are valid
};

/// Values of DecodedFrame::family.
namespace frame_family {
enum Value : int {
    SingleNode = 0,     ///< a full (0x91) or compact (0x93) record
    GatewayBatch62 = 1, ///< full records of many nodes
    GatewayBatch63 = 2, ///< compact records of many nodes with one time stamp
    None = 4            ///< none of these: small items only, or nothing recognised
};
}

/// The result of decoding one payload.
struct DecodedFrame
{
    quint64 seq = 0;                 ///< sequence number, 1 for the parser's first frame
    int family = frame_family::None; ///< a frame_family value
    QByteArray item_tags;            ///< tags of the items found, in payload order
    quint8 gwid = 0;                 ///< gateway id of a batch, else 0
    quint32 gw_ts_ms = 0;            ///< gateway time stamp of a 0x63 batch in milliseconds, else 0
    QList<NodeSnapshot> nodes;       ///< one entry for a single module, one per radio node for a batch
    bool is_batch = false;           ///< a gateway batch was parsed
    bool has_quat = false;           ///< a quaternion was found
    bool has_euler = false;          ///< Euler angles were found
};

Q_DECLARE_METATYPE(node_data_t)
Q_DECLARE_METATYPE(DecodedFrame)
