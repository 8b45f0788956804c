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
/// arguments of the command line. The program makes one, after the application object and before any
/// plug-in, and destroys it last. The static functions do nothing, or give null or an empty list, while
/// there is none. GUI thread only, except for the pool, which any thread may use.
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

    /// Shuts down first if nobody did.
    ~PluginManager() override;

    [[nodiscard]] static PluginManager *instance();

    /// How messages reach the user; without one they go to standard output and standard error.
    void setMessageSink(MessageSink sink);

    /// The plug-ins without which start() fails, also when their libraries are missing or unreadable. Others
    /// are needed when their metadata says so.
    void setNeededPlugins(const QStringList &names);

    /// Late work of the plug-ins waits for startLateWork(), in milliseconds no longer than this; 0 unless
    /// set.
    void setLateWorkDelay(int nMs);
    void startLateWork();

    /// The whole start up to the event loop. `commandLine` begins with the program's name. A result means
    /// that the program ends with this exit code. Later failures of required plug-ins end the event loop
    /// with exit code 1.
    [[nodiscard]] std::optional<int> start(const QStringList &commandLine);

    /// Stops and deletes the plug-ins, dependents first, empties the pool and writes the settings. Nothing
    /// happens the second time.
    void shutdown();

    /// How long shutdown() waits for asynchronous plug-ins, in milliseconds; 5000 unless set.
    void setShutdownTimeout(int nTimeoutMs);

    /// Delivers an event; QApplication::notify() of a program calls nothing else, in any thread. What is
    /// thrown meanwhile goes no further: exceptionCaught() tells it, a window that was to close stays, and
    /// false is the result.
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

    /// Names what the present event makes the program do, such as the id of a command. The result is the name
    /// before.
    static QString setActivity(const QString &activity);

    /// While the program may be ending, false: other starts are not heard and run by themselves.
    static void setHearsOtherStarts(bool bHears);

    /// Free arguments of the command line, made absolute.
    [[nodiscard]] static QStringList arguments();
    static void setArguments(const QStringList &arguments);

    /// What went wrong with plug-ins so far, each once, and all plug-ins that were found.
    [[nodiscard]] static QList<PluginError> errors();
    [[nodiscard]] static QList<PluginDescription> plugins();

    /// The user's store and the machine-wide one, owned here; null when none was set.
    [[nodiscard]] static QSettings *settings();
    [[nodiscard]] static QSettings *globalSettings();
    void setSettings(std::unique_ptr<QSettings> settings);
    void setGlobalSettings(std::unique_ptr<QSettings> settings);

    /// Call after sync(): reports a store that could not be read or written, once for each store.
    static void checkSettings();

    /// Writes a store to its file now. False: it could not be written, which was reported once.
    static bool storeSettings(QSettings *settings);

    /// What was reported; those of the start were reported before any plug-in could listen.
    [[nodiscard]] static QList<SettingsFault> settingsFaults();

    /// The pool, in order of addition. Objects are not owned and drop out when they are destroyed.
    /// allObjects() does not lock: hold listLock() for reading while calling it and while walking the
    /// result. Reading nests; adding, removing or deleting an object of the pool while holding it would wait
    /// for ever.
    [[nodiscard]] static QObjectList allObjects();
    [[nodiscard]] static QReadWriteLock *listLock();

    /// Null and what is there already are ignored.
    static void addObject(QObject *object);
    static void removeObject(QObject *object);

    /// The first object of this class, or null, and all of them. These lock for themselves.
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
    /// The settings are there, and no plug-in has been loaded: the time for catalogues. Comes also when the
    /// program only explains its options.
    void aboutToLoadPlugins();

    /// All plug-ins have finished their delayed initialisation.
    void initializationDone();

    /// A settings store could not be read or written. The program goes on without it.
    void settingsFailed(const QString &file, const QString &reason);

    /// A slot, an event handler or a plug-in's remoteCommand() threw; `activity` is what setActivity() last
    /// named in that event, or empty. In the thread that threw.
    void exceptionCaught(const QString &activity, const QString &reason);

    /// The system asks the program to end (SIGTERM): who listens calls QCoreApplication::quit().
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
