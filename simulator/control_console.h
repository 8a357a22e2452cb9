#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <memory>

class QSocketNotifier;

namespace kvsim {

class Simulator;

/// Run-time controls: lines of text, such as "noise 3" or "unplug". Every line gets an answer whose last line is "ok"
/// or "error: ..." with a reason; "stats" has one line before it. Controls may also be given as options of the program.
class ControlConsole : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ControlConsole)

public:
    /// Longest line read from a descriptor, bytes.
    static constexpr qsizetype kMaxLineBytes = 1024;

    explicit ControlConsole(Simulator &simulator, QObject *parent = nullptr);
    ~ControlConsole() override;

    /// Executes one line. @return the lines of the answer
    QStringList execute(const QString &line);

    /// Reads lines from a descriptor from now on; each is answered by answered().
    void listen(int descriptor);

signals:
    void answered(const QString &line);
    /// "quit" was given, or the input has ended.
    void quitRequested();

private:
    void readAvailable();

    Simulator &m_simulator;
    std::unique_ptr<QSocketNotifier> m_notifier;
    int m_descriptor = -1;
    QByteArray m_input;
    bool m_lineTooLong = false;
};

} // namespace kvsim
