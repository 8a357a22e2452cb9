#pragma once

#include <QList>
#include <QObject>

#include <memory>
#include <vector>

/// One attempt with one fault of the bootloader at one packet, and the attempt after it.
struct UpdateCase
{
    const char *fault = ""; ///< the bootloader's control, such as "flip"
    int packet = 0;         ///< from 1; of "erase-ms", the time
    int times = 1;
    bool readsBack = true;
};

/// Runs cases on some devices side by side, each of which has one update at a time, and counts what comes of them.
class UpdateMatrix : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateMatrix)

public:
    struct Counts
    {
        int cases = 0;
        int right = 0;    ///< said to be verified, and so it is
        int doubtful = 0; ///< said to be doubtful or not verified, or the device did not come back
        int failed = 0;
        int refused = 0;         ///< the attempt after an erase that took too long was not begun
        int wrongSuccesses = 0;  ///< said to be verified, and the flash is wrong
        int furtherAttempts = 0; ///< beyond the one after the fault: the machine was too late for the protocol's waits
        int notRecovered = 0;    ///< no attempt after it has ended in a working device
        int notEnded = 0;        ///< no end in a minute
    };

    explicit UpdateMatrix(QList<UpdateCase> cases);
    ~UpdateMatrix() override;

    /// Every fault at every packet of an image of so many packets.
    static QList<UpdateCase> all(int packets);

    /// Runs the cases on `devices` devices side by side.
    Counts run(int devices, int packets);

private:
    class Lane;

    QList<UpdateCase> m_cases;
    std::vector<std::unique_ptr<Lane>> m_lanes;
};
