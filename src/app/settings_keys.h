#pragma once

#include <QLatin1String>

/// The settings file and its keys. It is in the working folder, is read and written through QSettings in INI format,
/// and may be missing, unwritable or hold anything: every reader checks what it gets (and at the start settings_file
/// checks that the file can be read at all).
namespace settings_keys {

constexpr QLatin1String kFile("param.ini");

constexpr QLatin1String kLanguage("Main/LANGUAGE");      ///< code of the interface language
constexpr QLatin1String kFontSize("Main/FONTSIZE");      ///< interface font size, points
constexpr QLatin1String kAppearance("Main/APPEARANCE");  ///< "system", "light" or "dark"
constexpr QLatin1String kGeometry("Main/GEOMETRY");      ///< main window's size and place
constexpr QLatin1String kPort("SERIAL/PORT");            ///< last source: a port's name or path, or an address
constexpr QLatin1String kBaudRate("SERIAL/BAUDRATE");    ///< last baud rate
constexpr QLatin1String kPortVendor("SERIAL/VENDOR_ID"); ///< USB identity of the last port, decimal
constexpr QLatin1String kPortProduct("SERIAL/PRODUCT_ID");
constexpr QLatin1String kPortSerial("SERIAL/SERIAL_NUMBER");
constexpr QLatin1String kReconnect("SERIAL/RECONNECT"); ///< opens a lost source again; missing: as its identity allows
constexpr QLatin1String kRecentSources("SOURCES");      ///< group of the last sources, "1" the newest
constexpr QLatin1String kPortGeometry("SERIAL/GEOMETRY");       ///< size and place of the port dialog
constexpr QLatin1String kSettingsGeometry("SETTINGS/GEOMETRY"); ///< of the device settings window
constexpr QLatin1String kRecordPath("RECORD/PATH"); ///< folder and name of the last recording, "<folder>/data.csv"
constexpr QLatin1String kRecordStopsByTime("RECORD/STOP_BY_TIME"); ///< true: after kRecordMinutes
constexpr QLatin1String kRecordMinutes("RECORD/MINUTES");
constexpr QLatin1String kRecordStopsBySize("RECORD/STOP_BY_SIZE"); ///< true: at kRecordMebibytes
constexpr QLatin1String kRecordMebibytes("RECORD/MEBIBYTES");
constexpr QLatin1String kRecordResumes("RECORD/RESUME");             ///< true: goes on after a lost connection
constexpr QLatin1String kRecordGeometry("RECORD/GEOMETRY");          ///< size and place of the recording window
constexpr QLatin1String kLinkHealthGeometry("LINK_HEALTH/GEOMETRY"); ///< that window's size and place
constexpr QLatin1String kUpdaterPath("UPDATER/PATH");                ///< last firmware image
constexpr QLatin1String kSlowEraseGroup("UPDATER_SLOW_ERASE");       ///< see SlowErases
constexpr QLatin1String kUpdaterGeometry("UPDATER/GEOMETRY");        ///< that window's size and place

constexpr QLatin1String kSpectrum("SPECTRUM"); ///< group of the spectrum window; kDashboardFolder below it
constexpr QLatin1String kSpectrumGeometry("SPECTRUM/GEOMETRY"); ///< its size and place

constexpr QLatin1String kRotationPreset("THREED/ROTATION_PRESET"); ///< last mounting chosen in the 3D window
constexpr QLatin1String kThreeDGeometry("THREED/GEOMETRY");        ///< its size and place
constexpr QLatin1String kThreeDFolder("THREED/FOLDER");            ///< folder of the last model

constexpr QLatin1String kSensorDashboard("SENSOR_DASHBOARD"); ///< groups of the two dashboards; below them:
constexpr QLatin1String kWirelessDashboard("WIRELESS_DASHBOARD");
constexpr QLatin1String kDashboardPlace("PLACE"); ///< window's size and place while not maximised
constexpr QLatin1String kDashboardMaximized("MAXIMIZED");
constexpr QLatin1String kDashboardFolder("SAVE_FOLDER"); ///< folder of the last saved picture or samples

} // namespace settings_keys
