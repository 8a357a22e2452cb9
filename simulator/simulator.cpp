#include "simulator/simulator.h"

#include <algorithm>
#include <cmath>

#include "simulator/frame_encoder.h"

namespace kvsim {

namespace {

constexpr int kDefaultRateHz = 100;
constexpr int kRotatingIds = 250;

int startRate(const Options &options, const SampleSource &source)
{
    return options.rateHz.value_or(int(std::lround(source.recordedRateHz().value_or(kDefaultRateHz))));
}

} // namespace

Simulator::Simulator(const Options &options, std::optional<CsvRecording> recording)
    : m_options(options), m_source(options.motion, options.device->convention(), std::move(recording), options.seed),
      m_device(*options.device, {startRate(options, m_source), options.id, 0}, options.baudRate, options.bootloader),
      m_faults(options.seed), m_line(options.baudRate), m_hostLine(options.baudRate), m_link(options.linkPath),
      m_radioNodes(options.seed), m_garbage(options.seed), m_nodes(options.nodes)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Simulator::tick);
    connect(&m_wake, &WakeTimer::timeout, this, &Simulator::tick);
    connect(&m_port, &PtyPort::received, this, &Simulator::receive);
    connect(&m_port, &PtyPort::hostLeft, this, &Simulator::discardUnsent);
}

bool Simulator::start(QString *error)
{
    if (!m_options.writeTimesPath.isEmpty() && !m_writeTimes.open(m_options.writeTimesPath, error))
        return false;
    m_elapsed.start();
    if (!replug(error))
        return false;
    takeRate();
    return true;
}

bool Simulator::replug(QString *error)
{
    if (!m_port.isOpen() && !m_port.open(error))
        return false;
    if (!m_link.pointTo(m_port.slaveName(), error))
        return false;
    emit portOpened(m_port.slaveName());
    return true;
}

void Simulator::unplug()
{
    m_link.remove();
    m_port.close();
    m_hostLine.clear();
    discardUnsent();
}

void Simulator::restart()
{
    m_device.restart(now());
    takeRate();
}

Simulator::Statistics Simulator::statistics() const
{
    Statistics result = m_statistics;
    result.sent = m_line.sentFrames();
    result.intact = m_line.sentIntactFrames();
    result.bytes = m_line.sentBytes();
    result.inBootloader = m_device.isInBootloader();
    result.packets = m_device.bootloader().packets();
    result.refused = m_device.bootloader().refusedPackets();
    result.missing = m_radioNodes.missing();
    return result;
}

void Simulator::silenceFor(int milliseconds)
{
    m_muteUntilNs = now() + qint64(milliseconds) * 1'000'000;
}

bool Simulator::setNodes(int nodes)
{
    if (!m_options.device->isGateway())
        return false;
    m_nodes = nodes;
    return true;
}

void Simulator::setClock(int milliseconds)
{
    m_clockZeroNs = now() - qint64(milliseconds) * 1'000'000;
    m_radioNodes.restartClocks();
}

bool Simulator::setClockDistance(int milliseconds)
{
    if (!m_options.device->isGateway())
        return false;
    m_clockDistanceMs = milliseconds;
    return true;
}

void Simulator::setRate(int rateHz)
{
    m_device.setRate(rateHz);
    takeRate();
}

// Adjusts the clock and the timer to what the device does now.
void Simulator::takeRate()
{
    const int rateHz = m_device.isStreaming() ? m_device.settings().rateHz : 0;
    if (rateHz == m_clockRateHz && m_timer.isActive())
        return;
    m_clockRateHz = rateHz;
    if (rateHz > 0)
        m_clock.restart(now(), rateHz);
    // A paced line and a bootloader trickle; an unlimited stream only needs checking a few times per frame.
    m_timer.start(m_options.baudRate > 0 || rateHz == 0 ? 1 : std::clamp(250 / rateHz, 1, 5));
}

void Simulator::tick()
{
    const qint64 nowNs = now();
    hear(nowNs);
    advanceDevice(nowNs);
    const bool hasHost = m_port.checkHost();
    if (!hasHost)
        discardUnsent();
    while (m_clockRateHz > 0) {
        const std::optional<qint64> moment = m_clock.takeDue(nowNs);
        if (!moment)
            break;
        if (hasHost)
            produceFrame(*moment);
        else
            ++m_statistics.unheard;
        ++m_frame;
    }
    sendDelayedReplies(nowNs);
    if (hasHost && !isMute(nowNs))
        m_line.pushReply(m_garbage.take(nowNs));
    m_line.advance(nowNs);
    flush();
}

void Simulator::receive(const QByteArray &bytes)
{
    const qint64 nowNs = now();
    m_hostLine.advance(nowNs);
    m_hostLine.pushReply(bytes);
    hear(nowNs);
    flush();
}

void Simulator::hear(qint64 nowNs)
{
    m_hostLine.advance(nowNs);
    const QByteArray bytes = m_hostLine.ready().toByteArray();
    if (bytes.isEmpty())
        return;
    m_hostLine.take(bytes.size());
    if (m_deaf || m_garbage.isOn() || isMute(nowNs))
        return;
    const QByteArray replies = m_device.receive(bytes, nowNs);
    if (m_replyDelayMs == 0 && m_delayedReplies.empty())
        sendReplies(replies);
    else if (!replies.isEmpty())
        m_delayedReplies.emplace_back(nowNs + qint64(m_replyDelayMs) * 1'000'000, replies);
    advanceDevice(nowNs);
    takeRate();
    if (m_clockRateHz == 0)
        releaseHeldFrames();
    flush();
}

void Simulator::advanceDevice(qint64 nowNs)
{
    const DeviceModel::Progress progress = m_device.advance(nowNs);
    sendReplies(progress.answers);
    if (progress.booted) {
        m_bootNs = nowNs;
        m_clockZeroNs = nowNs;
        m_radioNodes.restartClocks();
        m_frame = 0;
    }
    takeRate();
}

void Simulator::sendDelayedReplies(qint64 nowNs)
{
    while (!m_delayedReplies.empty() && m_delayedReplies.front().first <= nowNs) {
        sendReplies(m_delayedReplies.front().second);
        m_delayedReplies.pop_front();
    }
}

void Simulator::sendReplies(const QByteArray &replies)
{
    if (replies.isEmpty() || isMute(now()))
        return;
    m_line.advance(now());
    m_line.pushReply(m_faults.apply(replies).bytes);
    m_line.advance(now());
}

void Simulator::produceFrame(qint64 momentNs)
{
    ++m_statistics.frames;
    if (isMute(momentNs) || m_garbage.isOn()) {
        ++m_statistics.dropped;
        return;
    }
    const FaultInjector::Result result = m_faults.apply(encodeFrame(nextPayload(momentNs)));
    m_held.append({result.bytes, result.intact});
    if (m_held.size() < m_burst)
        return;
    // The line has carried bytes up to this frame's moment, even when the timer is late.
    m_line.advance(momentNs);
    releaseHeldFrames();
}

void Simulator::releaseHeldFrames()
{
    if (!m_line.pushFrames(m_held))
        m_statistics.dropped += quint64(m_held.size());
    m_held.clear();
}

/// The sample of one node, from 1; a module is node 1.
ImuSample Simulator::nodeSample(int node, qint64 momentNs)
{
    const bool isGateway = m_options.device->isGateway();
    const double seconds = double(std::max<qint64>(0, momentNs - m_bootNs)) * 1e-9;
    ImuSample sample = m_source.sampleAt(m_frame, seconds, node - 1, m_nodes);
    const std::optional<EulerAngles> attitude = isGateway ? m_radioNodes.attitude(node) : std::nullopt;
    if (attitude) {
        const AxisConvention convention = m_options.device->convention();
        setAttitude(sample, quaternionOf(*attitude, convention), convention);
        sample.gyr = {};
    }
    const qint64 deviceNs = std::max<qint64>(0, momentNs - m_clockZeroNs);
    sample.timeMs = isGateway ? m_radioNodes.timeMs(node, deviceNs) : quint32(deviceNs / 1'000'000);
    sample.id = quint8(isGateway ? node : m_device.settings().id);
    if (m_rotateIds)
        sample.id = quint8(1 + (m_frame * quint64(m_nodes) + quint64(node - 1)) % kRotatingIds);
    return sample;
}

QByteArray Simulator::nextPayload(qint64 momentNs)
{
    PayloadLayout batch = PayloadLayout::Batch62;
    switch (m_options.layout) {
    case LayoutChoice::Full91:
        return encodeSinglePayload(PayloadLayout::FullRecord91, nodeSample(1, momentNs));
    case LayoutChoice::Compact93:
        return encodeSinglePayload(PayloadLayout::CompactRecord93, nodeSample(1, momentNs));
    case LayoutChoice::Items:
        return encodeSinglePayload(PayloadLayout::Items, nodeSample(1, momentNs));
    case LayoutChoice::Batch62:
        break;
    case LayoutChoice::Batch63:
        batch = PayloadLayout::Batch63;
        break;
    case LayoutChoice::Dynamic:
        batch = m_frame % 2 == 0 ? PayloadLayout::Batch62 : PayloadLayout::Batch63;
        break;
    }
    QList<ImuSample> samples;
    samples.reserve(m_nodes);
    for (const int node : m_radioNodes.nextBatch(m_nodes))
        samples += nodeSample(node, momentNs);
    const qint64 deviceMs = std::max<qint64>(0, momentNs - m_clockZeroNs) / 1'000'000;
    const qint64 timeMs = deviceMs + (batch == PayloadLayout::Batch63 ? m_clockDistanceMs : 0);
    return encodeBatchPayload(batch, quint8(m_device.settings().id), quint32(timeMs), samples);
}

void Simulator::discardUnsent()
{
    m_delayedReplies.clear();
    m_statistics.dropped += quint64(m_held.size() + m_line.clear());
    m_held.clear();
}

void Simulator::flush()
{
    while (!m_line.ready().isEmpty()) {
        // Before the call: a reader on another core may get the bytes before it returns.
        const quint64 writeNs = m_writeTimes.isOpen() ? WriteTimes::now() : 0;
        const qsizetype taken = m_port.write(m_line.ready());
        if (taken <= 0)
            return;
        const quint64 sentBefore = m_line.sentFrames();
        m_line.take(taken);
        m_writeTimes.add(writeNs, m_line.sentFrames() - sentBefore);
    }
    // The next step of the bootloader dialogue is due when the bytes in transit have arrived.
    const qint64 outNs = m_line.remainingNs();
    const qint64 inNs = m_hostLine.remainingNs();
    if (m_device.isInBootloader() && (outNs > 0 || inNs > 0))
        m_wake.startNs(outNs > 0 && inNs > 0 ? std::min(outNs, inNs) : std::max(outNs, inNs));
}

} // namespace kvsim
