#pragma once

#include <QString>

#include <optional>

#include "link/source_address.h"

/// What distinguishes a source from all others, so that a lost one can be found again and no other is taken for it: the
/// serial number of a USB adapter, a name that was given to the device (a link such as those in /dev/serial/by-id), or
/// the address of a source on the network. A plain value. The functions ask the system for its ports, not for the
/// network.
struct SourceIdentity
{
    SourceAddress address;
    bool isNamed = false; ///< the port's path is a name given to this device
    quint16 vendorId = 0;
    quint16 productId = 0;
    QString serialNumber; ///< of the USB adapter; empty when it has none

    /// As the source is now: ask while its device is there.
    static SourceIdentity of(const SourceAddress &address);

    /// It can be told from all others.
    bool isUnique() const { return isNamed || !serialNumber.isEmpty() || address.isNetwork(); }
    /// Where the source is now, perhaps at another port than before; nothing while it is not there, or while another
    /// one claims to be the same. Sources on the network are always where they were.
    std::optional<SourceAddress> find() const;
};
