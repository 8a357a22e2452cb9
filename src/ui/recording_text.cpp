#include "ui/recording_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <algorithm>

#include "app/value_format.h"
#include "record/recording_target.h"
#include "ui/device_text.h"

namespace {

constexpr qsizetype kShownPathLength = 240;
constexpr qsizetype kShownNodes = 12;
constexpr double kManyHours = 99;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(form_record)
};

QString nodeList(const QList<int> &ids)
{
    QStringList texts;
    for (const int id : ids.first(std::min<qsizetype>(ids.size(), kShownNodes)))
        texts += QString::number(id);
    if (ids.size() > kShownNodes)
        texts += QString(QChar(0x2026));
    return texts.join(QLatin1String(", "));
}

QString problemText(const RecordingProblem &problem)
{
    const QString path = recording_text::shownPath(problem.path);
    switch (problem.kind) {
    case RecordingProblem::Kind::StillWriting:
        return Text::tr("The last recording is still being written. Try again when that has ended.");
    case RecordingProblem::Kind::FolderIsFile:
        return Text::tr("%1 is a file, not a folder.").arg(path);
    case RecordingProblem::Kind::CannotCreateFolder:
        return Text::tr("The folder %1 cannot be created. Choose another one.").arg(path);
    case RecordingProblem::Kind::CannotOpenFile:
        return Text::tr("%1 cannot be written: %2").arg(path, problem.reason);
    case RecordingProblem::Kind::None:
    case RecordingProblem::Kind::NotConnected: // these two are shown beside the button and the fields
    case RecordingProblem::Kind::BadTarget:
        break;
    }
    return {};
}

} // namespace

QString recording_text::nameProblem(const QString &name)
{
    using recording_target::NameState;
    switch (recording_target::nameState(name)) {
    case NameState::Good:
        return {};
    case NameState::Empty:
        return Text::tr("Type a name.");
    case NameState::TooLong:
        return Text::tr("This name is too long.");
    case NameState::BadCharacter:
        return Text::tr("A name cannot hold any of %1").arg(QStringLiteral("/ \\ : * ? \" < > |"));
    case NameState::Reserved:
        return Text::tr("This name is reserved by some systems. Choose another one.");
    }
    return {};
}

QStringList recording_text::notices(const RecordingProblem &problem, const Recorder::Trouble &trouble)
{
    QStringList lines{problemText(problem)};
    lines.removeAll(QString());
    if (trouble.dropped > 0)
        lines += Text::tr("The disk is too slow. Records dropped: %1").arg(trouble.dropped);
    if (!trouble.fileError.isEmpty())
        lines += Text::tr("The file cannot be written: %1").arg(trouble.fileError);
    if (trouble.lost > 0)
        lines += Text::tr("Records that could not be written: %1").arg(trouble.lost);
    if (!trouble.vanishedFile.isEmpty())
        lines += Text::tr("%1 has been deleted or moved. Stop and start again to record into a new file.")
                     .arg(shownPath(trouble.vanishedFile));
    if (!trouble.nodesLeftOut.isEmpty())
        lines += Text::tr("A file holds 16 nodes. Not recorded: %1").arg(nodeList(trouble.nodesLeftOut));
    if (!trouble.sidecarError.isEmpty())
        lines += Text::tr("A file beside the recording cannot be written: %1").arg(shownPath(trouble.sidecarError));
    if (trouble.lowSpace)
        lines += Text::tr("The disk is nearly full.");
    return lines;
}

QString recording_text::shownPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    if (native.size() <= kShownPathLength)
        return device_text::breakable(native);
    const qsizetype half = kShownPathLength / 2;
    return device_text::breakable(native.first(half) + QChar(0x2026) + native.last(half));
}

QString recording_text::size(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QString recording_text::space(qint64 freeBytes, double bytesPerSecond)
{
    if (freeBytes < 0)
        return value_format::absent();
    QString space = size(freeBytes);
    if (bytesPerSecond < 1)
        return space;
    const double minutes = double(freeBytes) / bytesPerSecond / 60;
    if (minutes > kManyHours * 60)
        return Text::tr("%1, enough for days").arg(space);
    if (minutes >= 120)
        return Text::tr("%1, enough for %2 h").arg(space).arg(int(minutes / 60));
    if (minutes >= 1)
        return Text::tr("%1, enough for %2 min").arg(space).arg(int(minutes));
    return Text::tr("%1, enough for less than 1 min").arg(space);
}

QString recording_text::elapsed(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}
