#include "capture/capture_fault.h"

QString CaptureFault::text() const
{
    switch (kind) {
    case Kind::None:
        return {};
    case Kind::CannotOpen:
        return tr("The capture %1 cannot be opened: %2").arg(path, detail);
    case Kind::NotACapture:
        return tr("%1 is not a capture: it does not begin like an MCAP file.").arg(path);
    case Kind::NothingWhole:
        return tr("Nothing in the capture %1 can be read: it is empty or damaged.").arg(path);
    case Kind::NoSerialBytes:
        return tr("%1 holds no received bytes that could be played back. Another program may have written it.")
            .arg(path);
    case Kind::CannotCreate:
        return tr("The capture %1 cannot be created: %2").arg(path, detail);
    case Kind::CannotWrite:
        return tr("The capture %1 has ended: %2. What was written before is complete.").arg(path, detail);
    case Kind::Vanished:
        return tr("The capture %1 has ended: the file was deleted or moved.").arg(path);
    case Kind::InUse:
        return tr("The capture %1 is being written at this moment.").arg(path);
    case Kind::FolderTakesNoFiles:
        return tr("The capture %1 cannot be repaired: its folder is read-only. It has not been changed.").arg(path);
    case Kind::CannotRepair:
        return tr("The capture %1 cannot be repaired: %2. It has not been changed.").arg(path, detail);
    }
    return {};
}
