#pragma once

#include <QPointer>

#include "link/bootloader_state.h"

class KvUartPort;

/// What the update window does with the port: it calls the worker in its own thread, and reads what the worker has
/// found out while that is idle. Main thread only; the port may die first, and then nothing works any more.
class BootloaderLine
{
public:
    void setPort(KvUartPort *port);

    /// Restarts the device into its bootloader and connects to it. Blocks for up to 4 s.
    bool connectBootloader();
    /// Has an image downloaded, which begins later; false when it cannot be asked for.
    bool startDownload(const QByteArray &image, int address);

    /// How the last connect or download went, and what the bootloader has told; nothing while one runs.
    BootloaderOutcome outcome() const;
    BootloaderFacts facts() const;

private:
    QPointer<KvUartPort> m_port;
};
