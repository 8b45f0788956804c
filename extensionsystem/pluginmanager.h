// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>
#include <extensionsystem/pluginerror.h>
#include <extensionsystem/pluginrecord.h>
#include <extensionsystem/settingsstore.h>

#include <QList>
#include <QObject>
#include <QReadWriteLock>
#include <QSettings>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QEvent;

namespace ExtensionSystem {

struct RemoteCommand;

/// Loads the plug-ins and holds what they share: the pool of objects, the settings stores and the free
/// arguments of the command line. The program makes one after the application object and destroys it before
/// that. While there is none, the static functions do nothing, or return null or an empty value. GUI thread
/// only, except for the pool, deliver() and setActivity(), which any thread may use.
class EXTENSIONSYSTEM_EXPORT PluginManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PluginManager)

public:
    enum class Message {
        Output, ///< what the user asked to see: help, version
        Note, ///< the program goes on, but not as expected
        UsageError, ///< the command line is wrong
        StartFailure ///< the program cannot run
    };
    using MessageSink = std::function<void(Message kind, const QString &text)>;

    PluginManager();

    /// Calls shutdown().
    ~PluginManager() override;

    [[nodiscard]] static PluginManager *instance();

    /// Sets how messages reach the user; without a sink they go to standard output and standard error.
    void setMessageSink(MessageSink sink);

    /// Names the plug-ins without which start() fails, also when their libraries are missing or cannot be
    /// read. Plug-ins whose metadata says so are needed as well.
    void setNeededPlugins(const QStringList &names);

    /// The late work of the plug-ins begins with startLateWork(), or this many milliseconds after the start
    /// at the latest; 0 unless set.
    void setLateWorkDelay(int nMs);
    void startLateWork();

    /// Runs the whole start up to the event loop. `commandLine` begins with the program's name. A result is
    /// the exit code with which the program shall end at once. When a required plug-in fails later, the event
    /// loop ends with exit code 1.
    [[nodiscard]] std::optional<int> start(const QStringList &commandLine);

    /// Stops and deletes the plug-ins, dependents first, empties the pool and writes the settings. A second
    /// call only writes the settings again.
    void shutdown();

    /// How long shutdown() waits for plug-ins that stop asynchronously, in milliseconds; 5000 unless set.
    void setShutdownTimeout(int nTimeoutMs);

    /// Delivers an event for QApplication::notify() of a program, in any thread. What `function` throws goes
    /// no further: exceptionCaught() is emitted, a window that was to close stays open, and the result is
    /// false.
    template <typename Function>
    static bool deliver(QEvent *event, Function function)
    {
        const QString strOuter = setActivity(QString());
        bool bResult = false;
        const QString strThrown = caught([&] { bResult = function(); });
        const QString strActivity = setActivity(strOuter);
        if (!strThrown.isEmpty())
            tellException(event, strActivity, strThrown);
        return bResult;
    }

    /// Names what the event that this thread handles makes the program do, such as the id of a command, for
    /// exceptionCaught(). Returns the name before.
    static QString setActivity(const QString &activity);

    /// False, while the program may be ending, turns other starts away, which then run by themselves.
    static void setHearsOtherStarts(bool bHears);

    /// The arguments of the command line that are not options, as absolute file names.
    [[nodiscard]] static QStringList arguments();
    static void setArguments(const QStringList &arguments);

    /// All errors of plug-ins so far, each once; and all plug-ins that were found, used or not.
    [[nodiscard]] static QList<PluginError> errors();
    [[nodiscard]] static QList<PluginDescription> plugins();

    /// The user's store and that of the machine, owned by the manager; null before start() unless set.
    [[nodiscard]] static QSettings *settings();
    [[nodiscard]] static QSettings *globalSettings();
    void setSettings(std::unique_ptr<QSettings> settings);
    void setGlobalSettings(std::unique_ptr<QSettings> settings);

    /// Reports every store that could not be read or written, once for each. Call it after sync().
    static void checkSettings();

    /// Writes a store to its file now. Returns false for null and when that failed, which is reported once.
    static bool storeSettings(QSettings *settings);

    /// All faults reported so far, also those of the start, which no plug-in could hear of.
    [[nodiscard]] static QList<SettingsFault> settingsFaults();

    /// The pool, in order of addition. Objects are not owned and leave the pool when they are destroyed.
    /// allObjects() does not lock: hold listLock() for reading while you call it and use the result. A thread
    /// may lock for reading several times, but adding, removing or deleting an object of the pool meanwhile
    /// would wait forever.
    [[nodiscard]] static QObjectList allObjects();
    [[nodiscard]] static QReadWriteLock *listLock();

    /// Null is ignored, and so is adding what is in the pool or removing what is not.
    static void addObject(QObject *object);
    static void removeObject(QObject *object);

    /// The first object of this class or null, and all of them. Both functions lock the pool themselves.
    template <typename T>
    [[nodiscard]] static T *object()
    {
        return objects<T>().value(0);
    }

    template <typename T>
    [[nodiscard]] static QList<T *> objects()
    {
        const QReadLocker locker(listLock());
        QList<T *> found;
        const QObjectList all = allObjects();
        for (QObject *pObject : all) {
            if (T *pWanted = qobject_cast<T *>(pObject))
                found.append(pWanted);
        }
        return found;
    }

signals:
    /// The settings are open and no plug-in is loaded, so catalogs can be installed now. Also emitted before
    /// the help or an error in the command line is printed.
    void aboutToLoadPlugins();

    /// All plug-ins have finished their delayed initialization, or have exceeded the time for it.
    void initializationDone();

    /// A settings store could not be read or written. The program goes on with what it could read.
    void settingsFailed(const QString &file, const QString &reason);

    /// A slot, an event handler or a plug-in's remoteCommand() threw. `activity` is what setActivity() last
    /// named in that event; else, and for remoteCommand(), it is empty. Emitted in the thread that threw.
    void exceptionCaught(const QString &activity, const QString &reason);

    /// The system asks the program to end (SIGTERM). Nothing happens unless a listener calls quit().
    void endRequested();

private:
    struct Private;

    static void tellException(QEvent *pEvent, const QString &strActivity, const QString &strReason);
    void tell(Message kind, const QString &text) const;
    void report(const PluginError &error);
    [[nodiscard]] int explainOptions(const QStringList &commandLine, const QList<PluginRecord> &records);
    [[nodiscard]] std::optional<int> claimInstance(const QString &strSettingsFolder);
    void openSettings(const QString &strFolder);
    [[nodiscard]] std::optional<int> startPlugins(QList<PluginRecord> records);
    void markNeeded(QList<PluginRecord> *pRecords) const;
    [[nodiscard]] int failStart();
    void requiredPluginFailed();
    void finishStart();
    void takeCommand(const RemoteCommand &command);
    void runCommands();
    void emptyPool();

    std::unique_ptr<Private> d;
};

} // namespace ExtensionSystem
