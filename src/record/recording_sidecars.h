#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QList>
#include <QString>

#include <memory>

#include "record/recording_context.h"

/// The files beside each CSV file of a recording: its description, and its markers once there is one. For
/// "walk_20250303_140509.csv":
///
///     walk_20250303_140509.json         UTF-8, one object, rewritten in place when something in it changes
///     walk_20250303_140509.markers.csv  Time(s),UTC,Text; one line per marker, texts quoted as in RFC 4180, LF
///
/// Both are created only where no file of that name exists, and stay open as long as the CSV file: a file that replaces
/// one of them is never touched. Used by one thread, which may block on the disk.
class RecordingSidecars
{
public:
    static constexpr qsizetype kMaxMarkerText = 1000; ///< characters

    static QString descriptionPath(const QString &csvPath);
    static QString markersPath(const QString &csvPath);

    /// A CSV file has been opened at this time (UTC).
    void beginFile(const QString &csvPath, const QDateTime &now);
    /// The CSV file has been closed at this time. It holds so many records, and these nodes were left out.
    void endFile(const QDateTime &now, unsigned int records, const QList<int> &leftOut);
    void setContext(const RecordingContext &context);
    void addMarker(const RecordingMarker &marker);

    /// The system's message about what could not be written, preceded by the path; empty when there is none.
    const QString &error() const { return m_error; }

    static QByteArray markerLine(const RecordingMarker &marker);

private:
    struct End
    {
        QDateTime time;
        unsigned int records = 0;
        QList<int> leftOut;
    };

    QByteArray description(const End *end) const;
    void describe(const End *end = nullptr);
    std::unique_ptr<QFile> create(const QString &path);
    void write(QFile &file, const QByteArray &bytes);

    RecordingContext m_context;
    QString m_csvPath;
    QDateTime m_start;
    std::unique_ptr<QFile> m_description; ///< null: it could not be created, or there is no CSV file
    std::unique_ptr<QFile> m_markers;
    QString m_error;
};
