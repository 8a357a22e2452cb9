#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

#include "updater/update_result.h"

/// What is kept of a finished update: a file "update-reports/update-20260517-104501-250.json" in the working folder,
/// named after the time of its end in UTC. All values are texts and whole numbers; the log is an array of lines.
struct UpdateReport
{
    static constexpr int kKept = 50;         ///< newest reports in a folder
    static constexpr int kMaxLogLines = 500; ///< the last ones

    QDateTime ended; ///< UTC
    QString device;  ///< as it identified itself
    QString chip;
    QString port;
    int baudRate = 0;
    QString oldBuild;
    QString newBuild;
    QString file;
    QString sha256; ///< of the image
    quint32 address = 0;
    qint64 size = 0;
    QString verdict; ///< of UpdateVerdict, such as "Verified"
    QString reason;  ///< of UpdateReason
    QString flash;   ///< of FlashState
    quint32 targetStatus = 0;
    qint64 writtenBytes = 0;
    int sentPackets = 0;
    int repeatedPackets = 0;
    qint64 writeMs = 0;
    qint64 verifyMs = 0;
    QStringList log; ///< as the user saw it

    bool operator==(const UpdateReport &) const = default;

    /// Takes over the result of the update.
    void setResult(const UpdateResult &result);

    /// For people: one line per value, then the log.
    QString toText() const;

    /// Writes it into the folder's reports and removes the oldest ones. The path of the file; empty when it could not
    /// be written. Any thread except the main one.
    QString store(const QString &folder) const;
    /// Paths of a folder's reports, newest first, at most kKept. Any thread except the main one.
    static QStringList files(const QString &folder);
    /// None when the file is not a report that this program could have written. Any thread except the main one.
    static std::optional<UpdateReport> read(const QString &path);
};
