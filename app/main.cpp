// SPDX-License-Identifier: MIT
#include "catalogues.h"

#include <extensionsystem/commandline.h>
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

constexpr int s_nPaintPatienceMs = 3000; // after this, late work no longer waits for a paint (locked screen)

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

// Whether the user asks only for the version or the help. With a console, these need no display.
bool isQuestion(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const ExtensionSystem::CommandLine line(arguments);
    return s_bHasConsole && (line.wantsVersion() || line.wantsHelp());
}

void prepare(PluginManager &manager)
{
    QCoreApplication::setApplicationName(QStringLiteral("Kelpa Studio"));
    QCoreApplication::setOrganizationName(QStringLiteral("ORVEN"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELPA_VERSION));
    manager.setMessageSink(showMessage);
    manager.setNeededPlugins({QStringLiteral("core")});
    manager.setLateWorkDelay(s_nPaintPatienceMs);
    QObject::connect(&manager, &PluginManager::aboutToLoadPlugins, &installCatalogues);
}

/// Keeps exceptions that event handlers throw from ending the program, and starts the late work of the
/// plug-ins when a widget has been painted, which is when the user sees the window.
class Program : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *pReceiver, QEvent *pEvent) override
    {
        const bool bPainted = pEvent->type() == QEvent::Paint && pReceiver->isWidgetType();
        const bool bResult =
            PluginManager::deliver(pEvent, [&] { return QApplication::notify(pReceiver, pEvent); });
        if (bPainted && PluginManager::instance())
            PluginManager::instance()->startLateWork();
        return bResult;
    }
};

} // namespace

int main(int argc, char *argv[])
{
    if (isQuestion(argc, argv)) {
        QCoreApplication application(argc, argv);
        PluginManager manager;
        prepare(manager);
        return manager.start(QCoreApplication::arguments()).value_or(0);
    }
    // The program scales by itself. The variable is removed below, so that child processes do not inherit it.
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar); // the menus are part of our title bar
#ifdef KELPA_FONTCONFIG
    // Reading the descriptions of the system's fonts takes milliseconds, so a thread does it while the
    // libraries are loaded. QFontDatabase must wait for the application object.
    std::promise<void> started;
    std::jthread reading([&started] {
        FcInit();
        started.get_future().wait();
        QFontDatabase::families();
    });
#endif
    Program application(argc, argv);
#ifdef KELPA_FONTCONFIG
    started.set_value();
    std::jthread fonts = std::move(reading); // declared after the application, so joined before it goes
#endif
    PluginManager manager;
    prepare(manager);
    if (const auto exitCode = manager.start(QCoreApplication::arguments()))
        return *exitCode;
#ifdef KELPA_FONTCONFIG
    fonts.join(); // no other thread may read the environment while it changes
#endif
    qunsetenv("QT_ENABLE_HIGHDPI_SCALING");
    const int nExitCode = QApplication::exec();
    manager.shutdown();
    return nExitCode;
}
