#pragma once

#include <QList>
#include <QObject>

#include <memory>
#include <vector>

/// One attempt with one fault of the bootloader at one packet, and the attempt after it.
struct UpdateCase
{
    const char *fault = ""; ///< the bootloader's control, such as "flip"
    int packet = 0;         ///< from 1; for "erase-ms", the time
    int times = 1;
    bool readsBack = true;
};

/// Runs cases on several devices side by side, each with one update at a time, and counts the outcomes.
class UpdateMatrix : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateMatrix)

public:
    struct Counts
    {
        int cases = 0;
        int right = 0;    ///< reported as verified, correctly
        int doubtful = 0; ///< reported as doubtful or not verified, or the device did not come back
        int failed = 0;
        int refused = 0;         ///< the attempt after an erase that took too long was not started
        int wrongSuccesses = 0;  ///< reported as verified, but the flash is wrong
        int furtherAttempts = 0; ///< beyond the one after the fault: the machine missed the protocol's time limits
        int notRecovered = 0;    ///< no later attempt ended with a working device
        int notEnded = 0;        ///< did not end within a minute
    };

    explicit UpdateMatrix(QList<UpdateCase> cases);
    ~UpdateMatrix() override;

    /// Every fault at every packet of an image of this many packets.
    static QList<UpdateCase> all(int packets);

    /// Runs the cases on `devices` devices side by side.
    Counts run(int devices, int packets);

private:
    class Lane;

    QList<UpdateCase> m_cases;
    std::vector<std::unique_ptr<Lane>> m_lanes;
};
