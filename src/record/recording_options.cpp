#include "record/recording_options.h"

#include <QSettings>

#include "app/settings_keys.h"

namespace {

int number(const QSettings &settings, QLatin1String key, int fallback, int most)
{
    bool isNumber = false;
    const int value = settings.value(key).toInt(&isNumber);
    return isNumber && value >= 1 && value <= most ? value : fallback;
}

} // namespace

RecordingOptions RecordingOptions::remembered()
{
    const QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    RecordingOptions options;
    options.stopsByTime = settings.value(settings_keys::kRecordStopsByTime).toBool();
    options.minutes = number(settings, settings_keys::kRecordMinutes, options.minutes, kMaxMinutes);
    options.stopsBySize = settings.value(settings_keys::kRecordStopsBySize).toBool();
    options.mebibytes = number(settings, settings_keys::kRecordMebibytes, options.mebibytes, kMaxMebibytes);
    options.resumes = settings.value(settings_keys::kRecordResumes).toBool();
    return options;
}

void RecordingOptions::remember() const
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.setValue(settings_keys::kRecordStopsByTime, stopsByTime);
    settings.setValue(settings_keys::kRecordMinutes, minutes);
    settings.setValue(settings_keys::kRecordStopsBySize, stopsBySize);
    settings.setValue(settings_keys::kRecordMebibytes, mebibytes);
    settings.setValue(settings_keys::kRecordResumes, resumes);
}
