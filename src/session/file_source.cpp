#include "session/file_source.h"

#include <QFile>

#include "capture/capture_source.h"
#include "capture/mcap_repair.h"
#include "record/recording_source.h"

namespace {

constexpr int kWindow = 64; // chunks of a common size: some milliseconds of work
constexpr qsizetype kCommonChunk = 4096;

bool isCapture(const QString &path)
{
    QFile file(path);
    if (path.endsWith(QLatin1String(".mcap"), Qt::CaseInsensitive))
        return true;
    return file.open(QIODevice::ReadOnly) && file.read(mcap::kMagicSize) == QByteArray(mcap::kMagic, mcap::kMagicSize);
}

} // namespace

FileSource::FileSource(const SourceAddress &address, PlayClock &clock, QObject *parent)
    : ByteSource(address, parent), m_clock(clock)
{}

std::unique_ptr<PlaySource> FileSource::openFile(PlayedFile &file, QString &problem)
{
    const QString &path = address().name;
    if (isCapture(path)) {
        auto capture = std::make_unique<CaptureSource>();
        if (!mcap_repair::isWhole(path))
            mcap_repair::repair(path); // otherwise what is whole can still be read
        if (capture->open(path)) {
            file = PlayedFile::of(*capture);
            return capture;
        }
        problem = capture->fault().text();
        return nullptr;
    }
    auto recording = std::make_unique<RecordingSource>();
    if (recording->open(path)) {
        file = PlayedFile::of(*recording, path);
        return recording;
    }
    problem = recording->error();
    return nullptr;
}

void FileSource::open()
{
    PlayedFile file;
    QString problem;
    std::unique_ptr<PlaySource> source = openFile(file, problem);
    if (!source) {
        emit failed(failure(SourceFault::File, problem));
        return;
    }
    m_player = std::make_unique<CapturePlayer>(std::move(source), m_clock);
    m_player->setWindow(kWindow);
    CapturePlayer *const player = m_player.get();
    connect(player, &CapturePlayer::received, this,
            [this](const QByteArray &bytes, qint64 timeNs) { passOn(&FileSource::received, bytes, timeNs); });
    connect(player, &CapturePlayer::sent, this,
            [this](const QByteArray &bytes, qint64 timeNs) { passOn(&FileSource::sent, bytes, timeNs); });
    connect(player, &CapturePlayer::restarted, this, &FileSource::restarted);
    connect(player, &CapturePlayer::playingChanged, this, &FileSource::playingChanged);
    connect(player, &CapturePlayer::rateMeasured, this, &FileSource::rateMeasured);
    connect(player, &CapturePlayer::ended, this, &FileSource::ended);
    emit described(file);
    emit opened();
}

void FileSource::close()
{
    m_player.reset();
}

int FileSource::weight(qsizetype bytes)
{
    return 1 + int(bytes / kCommonChunk);
}

template <typename Signal> void FileSource::passOn(Signal signal, const QByteArray &bytes, qint64 timeNs)
{
    if (const int counted = weight(bytes.size()); counted > 1)
        m_player->acknowledge(1 - counted); // the player has counted it as one
    emit(this->*signal)(bytes, timeNs);
}

void FileSource::acknowledge(int weight)
{
    if (m_player)
        m_player->acknowledge(weight);
}
