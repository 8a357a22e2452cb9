#pragma once

#include <QString>

/// Why a recording did not start. A plain value.
struct RecordingProblem
{
    enum class Kind {
        None,
        NotConnected,       ///< the link is closed
        BadTarget,          ///< no folder, or an invalid file name
        StillWriting,       ///< the last recording's file is not closed yet
        FolderIsFile,       ///< `path` is not a folder
        CannotCreateFolder, ///< `path` is missing
        CannotOpenFile      ///< `path` with `reason`
    };

    Kind kind = Kind::None;
    QString path;
    QString reason; ///< the system's message

    /// The disk refused it, after samples had been taken in.
    bool isOfDisk() const { return kind >= Kind::FolderIsFile; }
};
