// The program's entry point: only the start-up order.

#include <QApplication>
#include <QDebug>
#include <QIcon>
#include <QProcess>
#include <QSerialPort>
#include <QSurfaceFormat>

#include <cstdlib>
#include <memory>

#include "app/app_language_manager.h"
#include "app/appearance.h"
#include "app/application_fonts.h"
#include "app/initial_language_picker.h"
#include "app/instance.h"
#include "app/message_log.h"
#include "app/settings_file.h"
#include "app/settings_keys.h"
#include "link/node_data.h"
#include "ui/main_windows.h"

namespace {

constexpr int kSamplesPerPixel = 6; // for the 3D and chart views

/// Runs the program; returns the event loop's exit code.
int qMain(int argc, char **argv)
{
    QApplication application(argc, argv);
    message_log::open(instance::fileName(QStringLiteral("qt6_debug.log")));
    message_log::install();
    settings_file::setAsideIfDamaged(settings_keys::kFile);

    qRegisterMetaType<QSerialPort::SerialPortError>("QSerialPort::SerialPortError");
    qRegisterMetaType<node_data_t>("node_data_t");
    qRegisterMetaType<QVector<node_data_t>>("QVector<node_data_t>");

    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setSamples(kSamplesPerPixel);
    QSurfaceFormat::setDefaultFormat(format);

    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/mainicon.png")));
    application_fonts::loadAll();
    Appearance::instance().start();
    AppLanguageManager::instance().setPicker(pickInitialLanguage);
    if (!AppLanguageManager::instance().initialize()) {
        qWarning() << "Failed to initialize application language manager";
        message_log::close();
        return EXIT_FAILURE;
    }

    auto windows = std::make_unique<MainWindows>();
    windows->open();
    const int exitCode = QApplication::exec();

    QCoreApplication::sendPostedEvents(windows.get());
    const bool startsAgain = windows->wantsRestart();
    windows.reset(); // the port is free for the next one
    if (startsAgain
        && !QProcess::startDetached(QCoreApplication::applicationFilePath(), application.arguments().mid(1)))
        qWarning() << "Failed to start the program again";
    message_log::close();
    return exitCode;
}

} // namespace

int main(int argc, char **argv)
{
    // On X11. Without a GPU the driver loses a MiB with every window that it draws through GLX.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "xcb_egl");
    return qMain(argc, argv);
}
