// SPDX-License-Identifier: MIT
#include "catalogues.h"

#include <extensionsystem/pluginmanager.h>

#include <QApplication>
#include <QFontDatabase>
#include <QMessageBox>

#include <cstdio>

#ifdef KELPA_FONTCONFIG
#include <fontconfig/fontconfig.h>
#include <future>
#include <thread>
#endif

using ExtensionSystem::PluginManager;

namespace {

#ifdef Q_OS_WIN
constexpr bool s_bHasConsole = false;
#else
constexpr bool s_bHasConsole = true;
#endif

bool hasScreen()
{
    const QString strPlatform = QGuiApplication::platformName();
    return strPlatform != QLatin1String("offscreen") && strPlatform != QLatin1String("minimal");
}

void showMessage(PluginManager::Message kind, const QString &strText)
{
    std::FILE *pStream = kind == PluginManager::Message::Output ? stdout : stderr;
    std::fprintf(pStream, "%s\n", qUtf8Printable(strText));
    std::fflush(pStream);
    const bool bFailure = kind == PluginManager::Message::StartFailure;
    if (!hasScreen() || (s_bHasConsole && !bFailure))
        return;
    QMessageBox box(bFailure ? QMessageBox::Critical : QMessageBox::Information,
        QCoreApplication::applicationName(), strText, QMessageBox::Ok);
    box.exec();
}

} // namespace

int main(int argc, char *argv[])
{
    // The program scales by itself; its children shall not inherit that.
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar); // the menus stand in the title bar
#ifdef KELPA_FONTCONFIG
    // The description of the system's fonts takes milliseconds to read: meanwhile the libraries are loaded.
    std::promise<void> started;
    std::jthread reading([&started] {
        FcInit();
        started.get_future().wait();
        QFontDatabase::families();
    });
#endif
    QApplication application(argc, argv);
    qunsetenv("QT_ENABLE_HIGHDPI_SCALING"); // while the other thread does not look at the environment
#ifdef KELPA_FONTCONFIG
    started.set_value();
    const std::jthread fonts = std::move(reading); // joined before the application goes
#endif
    QCoreApplication::setApplicationName(QStringLiteral("Kelpa Studio"));
    QCoreApplication::setOrganizationName(QStringLiteral("ORVEN"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELPA_VERSION));

    PluginManager manager;
    manager.setMessageSink(showMessage);
    QObject::connect(&manager, &PluginManager::aboutToLoadPlugins, &installCatalogues);
    if (const auto exitCode = manager.start(QCoreApplication::arguments()))
        return *exitCode;
    const int nExitCode = QApplication::exec();
    manager.shutdown();
    return nExitCode;
}
