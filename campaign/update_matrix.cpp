#include "campaign/update_matrix.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <utility>

#include "support/update_device.h"

namespace {

constexpr int kLongMs = 60'000;
constexpr int kComeBackMs = 2500;
constexpr char kSlowErase[] = "erase-ms";
constexpr int kSlowEraseMs = 1600;
constexpr int kAttemptsAfter = 3;

/// A fault of a packet, and how many packets in a row have it.
struct Fault
{
    const char *control;
    int times;
};

constexpr Fault kFaults[] = {{"late", 1}, {"late", 2},    {"late", 1000}, {"noack", 1},  {"noack", 2},    {"flip", 1},
                             {"drop", 1}, {"drop", 1000}, {"power", 1},   {"status", 1}, {"abort", 1},    {"abort", 2},
                             {"nak", 1},  {"nak", 2},     {"ignore", 1},  {"ignore", 2}, {"ignore", 1000}};

} // namespace

/// One device, and the case that it runs.
class UpdateMatrix::Lane
{
public:
    explicit Lane(int packets) : m_image(UpdateDevice::image(packets)), m_device(m_folder.path())
    {
        m_isUsable = m_device.open();
    }

    bool isUsable() const { return m_isUsable; }
    bool isIdle() const { return m_stage == Stage::Idle; }

    void begin(const UpdateCase &what)
    {
        m_case = what;
        m_stage = Stage::Faulty;
        m_device.fault(what.readsBack ? "read on" : "read off");
        m_device.fault(plan(what.packet, what.times));
        m_device.start(m_image, kComeBackMs);
        m_deadline.setRemainingTime(kLongMs);
    }

    /// Continues the case; counts it when it is over.
    void poll(UpdateMatrix::Counts &counts)
    {
        if (m_device.refusal && m_device.update().isRunning()) {
            m_device.update().cancel();
            return;
        }
        if (m_stage == Stage::Idle || (!m_device.isDone() && !m_deadline.hasExpired()))
            return;
        if (!m_device.isDone()) {
            ++counts.notEnded;
            m_stage = Stage::Idle;
            return;
        }
        if (m_stage == Stage::Faulty) {
            countFirst(counts);
            if (!isSlowErase())
                m_device.fault(plan(0, 1));
            m_device.fault("read on");
            m_attemptsLeft = kAttemptsAfter;
            startAfter();
            return;
        }
        m_stage = Stage::Idle;
        // A chip that is still erasing does not hear the connect.
        if (isSlowErase() && !m_device.refusal && m_device.result().step == UpdateStep::Connect && m_attemptsLeft > 0) {
            ++counts.furtherAttempts;
            startAfter();
            return;
        }
        if (isSlowErase()) { // which must not be erased a second time
            counts.refused += m_device.refusal ? 1 : 0;
            counts.notRecovered += m_device.refusal ? 0 : 1;
            m_device.fault(plan(0, 1));
            UpdateNote::remove(m_folder.path());
            return;
        }
        const UpdateResult &result = m_device.result();
        const bool works = !m_device.refusal && result.verdict == UpdateVerdict::Verified
                           && result.newBuild == QLatin1String("build 2026-05-17") && m_device.isFlashRight(m_image);
        if (works)
            return;
        tell("next attempt");
        if (m_attemptsLeft > 0) { // the machine may have been late: the text on screen asks for another attempt
            ++counts.furtherAttempts;
            startAfter();
            return;
        }
        ++counts.notRecovered;
    }

private:
    enum class Stage { Idle, Faulty, After };

    void startAfter()
    {
        --m_attemptsLeft;
        m_device.start(m_image, kComeBackMs);
        m_deadline.setRemainingTime(kLongMs);
        m_stage = Stage::After;
    }

    bool isSlowErase() const { return qstrcmp(m_case.fault, kSlowErase) == 0; }

    QByteArray plan(int packet, int times) const
    {
        QByteArray text = QByteArray(m_case.fault) + ' ' + QByteArray::number(packet);
        return packet > 0 && times > 1 ? text + ':' + QByteArray::number(times) : text;
    }

    void countFirst(UpdateMatrix::Counts &counts)
    {
        ++counts.cases;
        switch (m_device.result().verdict) {
        case UpdateVerdict::Verified:
            if (m_device.isFlashRight(m_image)) {
                ++counts.right;
            } else {
                ++counts.wrongSuccesses;
                tell("wrong success");
            }
            break;
        case UpdateVerdict::Failed:
            ++counts.failed;
            break;
        default:
            ++counts.doubtful;
            break;
        }
    }

    void tell(const char *what) const
    {
        const UpdateResult &result = m_device.result();
        QTextStream(stdout) << what << ": " << plan(m_case.packet, m_case.times)
                            << (m_case.readsBack ? ", read back" : "") << ", verdict " << int(result.verdict)
                            << ", reason " << int(result.reason) << ", step " << int(result.step) << ", fault "
                            << int(result.outcome.fault) << Qt::endl;
    }

    QByteArray m_image;
    QTemporaryDir m_folder;
    UpdateDevice m_device;
    UpdateCase m_case;
    Stage m_stage = Stage::Idle;
    int m_attemptsLeft = 0;
    QDeadlineTimer m_deadline;
    bool m_isUsable = false;
};

UpdateMatrix::UpdateMatrix(QList<UpdateCase> cases) : m_cases(std::move(cases)) {}

UpdateMatrix::~UpdateMatrix() = default;

QList<UpdateCase> UpdateMatrix::all(int packets)
{
    QList<UpdateCase> cases;
    for (const Fault &fault : kFaults) {
        for (int packet = 1; packet <= packets; ++packet) {
            for (const bool readsBack : {true, false})
                cases.append({fault.control, packet, fault.times, readsBack});
        }
    }
    cases.append({kSlowErase, kSlowEraseMs, 1, true});
    return cases;
}

UpdateMatrix::Counts UpdateMatrix::run(int devices, int packets)
{
    m_lanes.clear();
    for (int i = 0; i < devices; ++i)
        m_lanes.push_back(std::make_unique<Lane>(packets));
    Counts counts;
    qsizetype next = 0;
    const auto isOver = [&] {
        bool allIdle = true;
        for (const auto &lane : m_lanes) {
            lane->poll(counts);
            if (lane->isIdle() && lane->isUsable() && next < m_cases.size())
                lane->begin(m_cases[next++]);
            allIdle = allIdle && lane->isIdle();
        }
        return allIdle;
    };
    while (!isOver())
        QTest::qWait(5);
    m_lanes.clear();
    return counts;
}
