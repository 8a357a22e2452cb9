// The settings file, fed into the functions that read it. Input: "param.ini".

#include <QRect>
#include <QSettings>

#include <algorithm>

#include "app/app_language_spec.h"
#include "app/settings_file.h"
#include "app/settings_keys.h"
#include "device/orientation_override.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/memory_file.h"
#include "fuzz/support/require.h"
#include "record/recording_target.h"
#include "ui/port_choice.h"
#include "ui/recent_sources.h"

namespace {

using port_choice::PortEntry;

void checkPort(const QSettings &settings, MemoryFile &copy)
{
    const port_choice::Remembered remembered = port_choice::read(settings);
    const PortEntry &port = remembered.port;
    require(remembered.baudRate >= port_choice::kMinimumBaud && remembered.baudRate <= port_choice::kMaximumBaud,
            "the baud rate can be set");
    require(port.path == port.path.trimmed() && port.path.size() <= recording_target::kMaxPathLength,
            "the port has a path");

    const QList<SourceAddress> recent = recent_sources::read(settings);
    require(recent.size() <= recent_sources::kMost, "the list of sources is bounded");
    for (const SourceAddress &address : recent)
        require(address.baudRate >= port_choice::kMinimumBaud && !address.text().contains(u'\n'),
                "a source is one line");

    PortEntry listed;
    listed.path = QStringLiteral("/dev/ttyUSB0");
    listed.hasUsbId = true;
    listed.vendorId = 0x0403;
    const int index = port_choice::preselect({listed}, port);
    require((index == 0)
                == (port.path == listed.path
                    || (port.hasUsbId && port.vendorId == listed.vendorId && port.productId == 0
                        && port.serialNumber.isEmpty())),
            "the port that was remembered is offered");

    copy.write({});
    {
        QSettings written(copy.path(), QSettings::IniFormat);
        require(port_choice::write(written, remembered), "the port can be remembered");
    }
    copy.touch();
    const port_choice::Remembered again = port_choice::read(QSettings(copy.path(), QSettings::IniFormat));
    const bool isSame = again.port.path == port.path && again.baudRate == remembered.baudRate
                        && again.port.hasUsbId == port.hasUsbId
                        && (!port.hasUsbId
                            || (again.port.vendorId == port.vendorId && again.port.productId == port.productId
                                && again.port.serialNumber == port.serialNumber));
    require(isSame, "what was remembered comes back");
}

void checkOrientation(QSettings &settings)
{
    for (const ProductProfile *profile : product_profile::allProfiles()) {
        DetectedDevice device;
        device.key = profile->key;
        device.profile = profile;
        const OrientationPreset preset = orientation_override::resolve(device, settings);
        require(preset == OrientationPreset::RfuEnu312 || preset == OrientationPreset::FluNwuZyx,
                "a device has an orientation");
    }
}

void checkRecording(const QSettings &settings)
{
    const recording_target::Target target = recording_target::remembered(settings);
    require(recording_target::nameState(target.name) == recording_target::NameState::Good, "a recording has a name");
    require(target.folder.startsWith(u'/'), "a recording has a folder");
}

void checkLanguage(const QSettings &settings)
{
    LanguageManifest manifest;
    for (const char *code : {"EN", "CN", "TC", "JA", "KO"}) {
        AppLanguageSpec language;
        language.setting = QLatin1String(code);
        manifest.languages.append(language);
    }
    const QString stored = settings.value(settings_keys::kLanguage).toString();
    const AppLanguageSpec *found = manifest.find(stored);
    require(found == nullptr || found->setting == stored.trimmed().toUpper(), "a language is the one that was stored");
}

/// All values are of the types that the guard accepts: no others are decoded.
void checkKinds(const QSettings &settings)
{
    for (const QString &key : settings.allKeys()) {
        const QVariant value = settings.value(key);
        const QVariantList items = value.typeId() == QMetaType::QVariantList ? value.toList() : QVariantList{value};
        for (const QVariant &item : items) {
            switch (item.typeId()) {
            case QMetaType::UnknownType:
            case QMetaType::QString:
            case QMetaType::QStringList:
            case QMetaType::QByteArray:
            case QMetaType::QRect:
            case QMetaType::QSize:
            case QMetaType::QPoint:
                break;
            default:
                require(false, "a value is of a kind that the program writes");
            }
        }
    }
}

/// The settings that windows read in one line each, read in the same way.
void readTheRest(QSettings &settings)
{
    (void)settings.value(settings_keys::kFontSize).toInt();
    (void)settings.value(settings_keys::kGeometry).toByteArray();
    (void)settings.value(settings_keys::kSpectrumGeometry).toByteArray();
    (void)settings.value(settings_keys::kUpdaterPath).toString();
    (void)settings.value(QLatin1String("THREED/ROTATION_PRESET")).toInt();
    settings.beginGroup(settings_keys::kSensorDashboard);
    (void)settings.value(settings_keys::kDashboardPlace).toRect();
    (void)settings.value(settings_keys::kDashboardMaximized).toBool();
    (void)settings.value(settings_keys::kDashboardFolder).toString();
    (void)settings.value(QLatin1String("SELECTED_SENSORS")).toStringList();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const auto messages = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    Q_UNUSED(messages)
    static MemoryFile file;
    static MemoryFile copy;
    file.write(FuzzInput(data, size).rest());
    const bool isAside = settings_file::setAsideIfDamaged(file.path());
    QSettings settings(file.path(), QSettings::IniFormat);
    require(!isAside || settings.allKeys().isEmpty(), "a damaged file is not read");
    checkKinds(settings);
    checkPort(settings, copy);
    checkOrientation(settings);
    checkRecording(settings);
    checkLanguage(settings);
    readTheRest(settings);
    return 0;
}
