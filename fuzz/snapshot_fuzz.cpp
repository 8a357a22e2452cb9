// A spectrum snapshot's import. Input: the file.

#include <QVariantMap>

#include "fft/fft_snapshot.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/memory_file.h"
#include "fuzz/support/require.h"

namespace {

constexpr int kSummaryEntries = 9;
constexpr size_t kFilesApart = 16; ///< reading a file takes a large buffer, which is slow under the sanitizers

/// Exported again, a summary's facts must be imported unchanged.
void checkRoundTrip(const QVariantMap &summary)
{
    FftSnapshot snapshot;
    snapshot.version = summary.value(QStringLiteral("version")).toString();
    snapshot.profileHash = summary.value(QStringLiteral("profileHash")).toString();
    snapshot.bandSummary = summary.value(QStringLiteral("bandSummary")).toString();
    snapshot.coherenceSummary = summary.value(QStringLiteral("coherenceSummary")).toString();
    snapshot.alarmPreset = summary.value(QStringLiteral("alarmPreset")).toString();
    snapshot.alarm.summary = summary.value(QStringLiteral("alarmSummary")).toString();
    snapshot.meta.windowName = summary.value(QStringLiteral("windowName")).toString();
    snapshot.meta.fftSize = summary.value(QStringLiteral("fftSize")).toInt();
    snapshot.meta.sampleRate = summary.value(QStringLiteral("sampleRate")).toInt();
    require(fft_snapshot::summary(fft_snapshot::toJson(snapshot)) == summary, "an export can be imported");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static MemoryFile file;
    const QByteArray bytes = FuzzInput(data, size).rest();
    const QVariantMap summary = fft_snapshot::summary(QString::fromUtf8(bytes));
    if (size % kFilesApart == 0) {
        file.write(bytes);
        QString reason;
        require(fft_snapshot::readFile(file.path(), reason) == summary, "a file is read as its text");
        require(reason.isEmpty(), "a file that can be read needs no reason");
    }
    if (summary.isEmpty())
        return 0;
    require(summary.size() == kSummaryEntries, "a summary is complete");
    for (const QVariant &value : summary)
        require(value.typeId() == QMetaType::QString || value.typeId() == QMetaType::Int,
                "facts are texts and numbers");
    checkRoundTrip(summary);
    return 0;
}
