#pragma once

#include <QCoreApplication>
#include <QMetaType>
#include <QString>

/// What went wrong with a capture file. A plain value; any thread.
struct CaptureFault
{
    Q_DECLARE_TR_FUNCTIONS(CaptureFault)

public:
    enum class Kind {
        None,
        CannotOpen,         ///< `detail` is the system's message
        NotACapture,        ///< the file does not begin like one
        NothingWhole,       ///< it does, but no chunk of it can be read
        NoSerialBytes,      ///< a file of another program: there is nothing to play back
        CannotCreate,       ///< folder or file; `detail` is the system's message
        CannotWrite,        ///< what had been written is whole; `detail` is the system's message
        Vanished,           ///< the file was deleted or moved while it was being written
        InUse,              ///< it is being written at this moment
        FolderTakesNoFiles, ///< the file stays as it is
        CannotRepair        ///< the file is unchanged; `detail` is the system's message
    };

    Kind kind = Kind::None;
    QString path;
    QString detail;

    bool any() const { return kind != Kind::None; }
    /// A sentence or two for the user; empty when there is no fault.
    QString text() const;
};

Q_DECLARE_METATYPE(CaptureFault)
