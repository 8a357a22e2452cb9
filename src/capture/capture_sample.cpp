#include "capture/capture_sample.h"

#include <charconv>
#include <cmath>
#include <iterator>

namespace {

struct Field
{
    const char *key;
    const char *description;
    SampleField quantity;
    float (*value)(const node_data_t &);
};

using Node = node_data_t;

constexpr Field kFields[] = {
    {"acc_x_g", "Acceleration X in g", SampleField::Acceleration, [](const Node &node) { return node.acc[0]; }},
    {"acc_y_g", "Acceleration Y in g", SampleField::Acceleration, [](const Node &node) { return node.acc[1]; }},
    {"acc_z_g", "Acceleration Z in g", SampleField::Acceleration, [](const Node &node) { return node.acc[2]; }},
    {"gyr_x_dps", "Angular rate X in deg/s", SampleField::AngularRate, [](const Node &node) { return node.gyr[0]; }},
    {"gyr_y_dps", "Angular rate Y in deg/s", SampleField::AngularRate, [](const Node &node) { return node.gyr[1]; }},
    {"gyr_z_dps", "Angular rate Z in deg/s", SampleField::AngularRate, [](const Node &node) { return node.gyr[2]; }},
    {"mag_x_ut", "Magnetic field X in uT", SampleField::MagneticField, [](const Node &node) { return node.mag[0]; }},
    {"mag_y_ut", "Magnetic field Y in uT", SampleField::MagneticField, [](const Node &node) { return node.mag[1]; }},
    {"mag_z_ut", "Magnetic field Z in uT", SampleField::MagneticField, [](const Node &node) { return node.mag[2]; }},
    {"roll_deg", "Roll in degrees", SampleField::Euler, [](const Node &node) { return node.roll; }},
    {"pitch_deg", "Pitch in degrees", SampleField::Euler, [](const Node &node) { return node.pitch; }},
    {"yaw_deg", "Yaw in degrees", SampleField::Euler, [](const Node &node) { return node.yaw; }},
    {"quat_w", "Attitude quaternion W, no unit", SampleField::Quaternion,
     [](const Node &node) { return node.quat[0]; }},
    {"quat_x", "Attitude quaternion X, no unit", SampleField::Quaternion,
     [](const Node &node) { return node.quat[1]; }},
    {"quat_y", "Attitude quaternion Y, no unit", SampleField::Quaternion,
     [](const Node &node) { return node.quat[2]; }},
    {"quat_z", "Attitude quaternion Z, no unit", SampleField::Quaternion,
     [](const Node &node) { return node.quat[3]; }},
    {"temperature_c", "Temperature in degrees Celsius", SampleField::Temperature,
     [](const Node &node) { return node.temperature; }},
    {"pressure_pa", "Air pressure in Pa", SampleField::Pressure, [](const Node &node) { return node.pressure; }},
};

void addKey(QByteArray &json, const char *key)
{
    ((json += json.size() > 1 ? ",\"" : "\"") += key) += "\":";
}

/// The shortest text that is read back as the same number.
template <typename T> void addNumber(QByteArray &json, const char *key, T value)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (!std::isfinite(value))
            return;
    }
    char text[32];
    const auto result = std::to_chars(std::begin(text), std::end(text), value);
    addKey(json, key);
    json.append(text, result.ptr - text);
}

QByteArray property(const char *key, const char *type, const char *description)
{
    return '"' + QByteArray(key) + "\":{\"type\":\"" + type + "\",\"description\":\"" + description + "\"}";
}

QByteArray schema(const char *title, const QByteArrayList &properties)
{
    return "{\"type\":\"object\",\"title\":\"" + QByteArray(title) + "\",\"properties\":{" + properties.join(',')
           + "}}";
}

} // namespace

namespace capture_json {

// Only what common viewers understand: a root of type "object", and "number" for all numbers, because "integer" means
// 32 bits to some.
QByteArray sampleSchema()
{
    QByteArrayList properties;
    for (const Field &field : kFields)
        properties.append(property(field.key, "number", field.description));
    properties.append(property("device_time_ms", "number", "Time stamp of the device in ms, wraps at 2^32"));
    properties.append(property("stream_time_ms", "number", "Time since the port was opened in ms"));
    return schema("kv.Sample", properties);
}

QByteArray eventSchema()
{
    return schema("kv.Event",
                  {property("kind", "string", "What happened"), property("text", "string", "What happened, for people"),
                   property("node", "number", "Node that it happened to"), property("count", "number", "How many"),
                   property("stream_time_ms", "number", "Time since the port was opened in ms")});
}

QByteArray sample(const CaptureSample &sample)
{
    QByteArray json;
    json.reserve(512);
    json += '{';
    for (const Field &field : kFields) {
        if (sample.fields.testFlag(field.quantity))
            addNumber(json, field.key, field.value(sample.node));
    }
    if (sample.fields.testFlag(SampleField::Time))
        addNumber(json, "device_time_ms", sample.node.time_ms);
    if (sample.streamTimeMs)
        addNumber(json, "stream_time_ms", *sample.streamTimeMs);
    json += '}';
    return json;
}

} // namespace capture_json
