#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QSocketNotifier;

namespace kvsim {

/// The master side of a pseudo-terminal: the device's end of the cable. The host opens slaveName() like a serial port.
/// A connection exists only while the host's end is open: before and after, written bytes are refused, so that a host
/// finds no old data when it opens the port.
///
/// Main thread; reading is driven by the event loop, but the arrival and departure of a host are noticed by
/// checkHost(), which the owner calls regularly.
class PtyPort : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PtyPort)

public:
    explicit PtyPort(QObject *parent = nullptr);
    ~PtyPort() override;

    /// Opens a new pseudo-terminal in raw mode, closing the previous one.
    /// @return false with a sentence in `error`
    bool open(QString *error);
    /// Pulls the plug: a host that has the port open gets an end of file or an input/output error.
    void close();
    bool isOpen() const { return m_master >= 0; }
    /// Path of the host's end, such as "/dev/pts/3"; empty while closed.
    const QString &slaveName() const { return m_slaveName; }

    /// Checks whether a host has the port open.
    bool checkHost();
    /// Writes as much as fits at once.
    /// @return bytes taken by the port, 0 when it is full, closed or without a host
    qsizetype write(QByteArrayView bytes);

signals:
    void received(const QByteArray &bytes);
    /// The host has closed the port; what it had not read yet is gone.
    void hostLeft();

private:
    void readAvailable();
    void loseHost();

    int m_master = -1;
    QString m_slaveName;
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_hasHost = false;
};

} // namespace kvsim
