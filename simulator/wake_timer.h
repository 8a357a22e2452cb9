#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace kvsim {

/// A single-shot timer finer than a millisecond. A packet of the bootloader dialogue takes a fraction of a millisecond
/// on a fast line, and the toolkit's timers would stretch that to two.
///
/// Event loop needed. Where the system has no such timer it never fires.
class WakeTimer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WakeTimer)

public:
    explicit WakeTimer(QObject *parent = nullptr);
    ~WakeTimer() override;

    /// Fires once, this many nanoseconds (at least one) from now; an earlier setting is forgotten.
    void startNs(qint64 ns);

signals:
    void timeout();

private:
    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace kvsim
