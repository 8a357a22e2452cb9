#include "wave/gateway_sample.h"

QList<GatewaySample> gatewaySamples(const DecodedFrame &frame)
{
    if (frame.family != frame_family::GatewayBatch62 && frame.family != frame_family::GatewayBatch63)
        return {};
    const SampleFields fields = sampleFields(frame);
    QList<GatewaySample> samples;
    samples.reserve(frame.nodes.size());
    for (const NodeSnapshot &node : frame.nodes)
        samples.append({.node = node.sample, .fields = fields});
    return samples;
}
