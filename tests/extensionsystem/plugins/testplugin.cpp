// SPDX-License-Identifier: MIT
#include <extensionsystem/iplugin.h>

#include <QEventLoop>

#include <cstdio>
#include <stdexcept>

/// A plug-in that prints what happens to it. BEHAVIOUR, "throw HOOK" or "fail HOOK", makes one hook go wrong,
/// "ask HOOK" makes it wait for ever as one with a box does; "throw event" is for a slot after the start.
class TestPlugin : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "testplugin.json")

public:
    TestPlugin() { note("construct"); }
    ~TestPlugin() override { note("destroy"); }

    bool initialize(const QStringList &arguments, QString *errorString) override
    {
        *errorString = "no licence for the sea";
        return note("initialize", arguments);
    }
    void extensionsInitialized() override
    {
        note("extensionsInitialized");
        for (const char *pEvent : {"event", "after"})
            QMetaObject::invokeMethod(
                this, [pEvent] { note(pEvent); }, Qt::QueuedConnection);
    }
    bool delayedInitialize() override { return note("delayedInitialize"); }
    ShutdownFlag aboutToShutdown() override
    {
        note("aboutToShutdown");
        return SynchronousShutdown;
    }
    QObject *remoteCommand(
        const QStringList &options, const QString &workingDirectory, const QStringList &arguments) override
    {
        note("remoteCommand", options + QStringList(workingDirectory) + arguments);
        return nullptr;
    }

private:
    // False when this hook is to fail.
    static bool note(const QString &strHook, const QStringList &details = {})
    {
        const QString strLine = PLUGIN_NAME " " + strHook + ' ' + details.join(' ');
        std::printf("%s\n", qUtf8Printable(strLine.trimmed()));
        std::fflush(stdout);
        if (BEHAVIOUR == "ask " + strHook)
            QEventLoop().exec();
        if (BEHAVIOUR == "throw " + strHook)
            throw std::runtime_error("broken on purpose");
        return BEHAVIOUR != "fail " + strHook;
    }
};

#include "testplugin.moc"
