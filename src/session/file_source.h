#pragma once

#include <memory>

#include "capture/capture_player.h"
#include "link/byte_source.h"
#include "session/played_file.h"

/// A capture, or a recording of ours in any layout, as a source of bytes: they are read and handed out by a
/// CapturePlayer in the port worker's thread, stamped with their play time. Opens paused. Nothing can be sent to it.
///
/// It hands out only so much before acknowledge(): what waits for the main thread is bounded, and nothing is dropped.
class FileSource : public ByteSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileSource)

public:
    /// `clock` outlives this.
    FileSource(const SourceAddress &address, PlayClock &clock, QObject *parent = nullptr);

    /// Also repairs a capture that lost its end.
    void open() override;
    void close() override;
    bool isOpen() const override { return m_player != nullptr; }

    /// While open.
    CapturePlayer &player() { return *m_player; }
    /// What so many bytes count for in acknowledge(), and in what may be outstanding.
    static int weight(qsizetype bytes);
    /// The receiver has dealt with chunks of this weight.
    void acknowledge(int weight);

signals:
    /// Comes before opened().
    void described(const PlayedFile &file);
    void playingChanged(bool playing);
    /// See CapturePlayer.
    void rateMeasured(double rate, bool keepsUp);
    void ended();

private:
    std::unique_ptr<PlaySource> openFile(PlayedFile &file, QString &problem);
    template <typename Signal> void passOn(Signal signal, const QByteArray &bytes, qint64 timeNs);

    PlayClock &m_clock;
    std::unique_ptr<CapturePlayer> m_player;
};
