#include "ui/status_text.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(status_text)
};

QString kilobytes(quint64 bytes)
{
    return QString::number(double(bytes) / 1024.0, 'f', 2);
}

} // namespace

QString status_text::statusBar(const StreamSnapshot &snapshot, bool infoDeferred)
{
    if (!snapshot.link_connected)
        return Text::tr("Unconnected...");
    if (snapshot.product_info_ready)
        return snapshot.product_profile_resolved ? Text::tr("Connected...")
                                                 : Text::tr("Using fallback product profile.");
    return infoDeferred ? Text::tr("Product info deferred during live stream.") : Text::tr("Product info pending...");
}

QString status_text::traffic(const LinkStatistics &statistics)
{
    return QStringLiteral("T:%1KB/s(%2%) R:%3KB/s(%4%)")
        .arg(kilobytes(statistics.txBytesLastSecond), QString::number(statistics.txLoadPercent),
             kilobytes(statistics.rxBytesLastSecond), QString::number(statistics.rxLoadPercent));
}

QString status_text::protocol(const DecodedFrame &frame)
{
    QStringList tags;
    for (const char tag : frame.item_tags)
        tags.append(QString::number(quint8(tag), 16).toUpper());
    switch (frame.family) {
    case frame_family::SingleNode:
        return Text::tr("Single node (0x%1)").arg(tags.join(u' '));
    case frame_family::GatewayBatch62:
    case frame_family::GatewayBatch63:
        return Text::tr("Gateway (0x%1)").arg(tags.join(u' '));
    default:
        return Text::tr("Items %1").arg(tags.join(u' '));
    }
}

QString status_text::connectionPanel(const QString &portName, int baudRate, const DecodedFrame &frame,
                                     unsigned int frameRate, bool streaming, bool settled)
{
    if (!streaming)
        return settled ? Text::tr("Connected.\nNo frame stream detected.") : Text::tr("Building connection...");
    const auto entry = [](const QString &name, const QString &value) {
        return QStringLiteral("%1 %2").arg(name, value);
    };
    return Text::tr("[Serial]\n%1 %2\n").arg(portName, QString::number(baudRate))
           + entry(Text::tr("Protocol:"), protocol(frame)) + u'\n'
           + entry(Text::tr("FrameRate:"), QString::number(frameRate) + QStringLiteral(" Hz"));
}

QString status_text::gatewaySummary(quint8 gatewayId, qsizetype nodeCount)
{
    return QStringLiteral("[%1]\n%2:%3\n%4:%5")
        .arg(Text::tr("Wireless"), Text::tr("DONGLE ID"), QString::number(gatewayId), Text::tr("TOTAL OF NODE"),
             QString::number(nodeCount));
}
