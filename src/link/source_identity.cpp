#include "link/source_identity.h"

#include <QFileInfo>
#include <QSerialPortInfo>

namespace {

/// Links are made for a device on purpose, except those that name a socket: whatever is plugged in there has it.
bool isGivenName(const QString &path)
{
    return QFileInfo(path).isSymLink() && !path.contains(QLatin1String("/by-path/"));
}

} // namespace

SourceIdentity SourceIdentity::of(const SourceAddress &address)
{
    SourceIdentity identity;
    identity.address = address;
    if (address.kind != SourceKind::Serial)
        return identity;
    identity.isNamed = isGivenName(address.name);
    const QString file = QFileInfo(address.name).canonicalFilePath();
    const QSerialPortInfo info(file.isEmpty() ? address.name : QFileInfo(file).fileName());
    if (info.hasVendorIdentifier() && info.hasProductIdentifier()) {
        identity.vendorId = info.vendorIdentifier();
        identity.productId = info.productIdentifier();
        identity.serialNumber = info.serialNumber();
    }
    return identity;
}

std::optional<SourceAddress> SourceIdentity::find() const
{
    if (address.isNetwork())
        return address;
    if (isNamed)
        return QFileInfo::exists(address.name) ? std::optional(address) : std::nullopt;
    std::optional<SourceAddress> found;
    if (serialNumber.isEmpty())
        return found;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        if (port.vendorIdentifier() != vendorId || port.productIdentifier() != productId
            || port.serialNumber() != serialNumber)
            continue;
        if (found)
            return std::nullopt; // cheap adapters share one number
        found = address;
        // As it was named before: by its path, or by the short name that some systems use.
        found->name = port.systemLocation().startsWith(u'/') ? port.systemLocation() : port.portName();
    }
    return found;
}
