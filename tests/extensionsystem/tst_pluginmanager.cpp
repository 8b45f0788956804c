// SPDX-License-Identifier: MIT
#include "childprocess.h"

#include <extensionsystem/pluginmanager.h>

#include <support/rows.h>

#include <QtTest>

#include <thread>

#include <sys/stat.h>

using namespace ExtensionSystem;

namespace {

// The test host with plug-in folders and settings of its own.
struct Host : ChildProcess
{
    Host(const QList<const char *> &folders, const QString &strSettings, const QStringList &arguments = {},
        const QList<QPair<QString, QString>> &environment = {})
        : ChildProcess(
            testPath("testhost"), commandLine(folders, strSettings) + arguments, environment, "/tmp")
    {
    }

    static QStringList commandLine(const QList<const char *> &folders, const QString &strSettings)
    {
        QStringList line = {"--new-instance", "--settings-path", strSettings};
        for (const char *pFolder : folders)
            line << QStringLiteral("--plugin-path") << testPath(pFolder);
        return line;
    }
};

void write(const QString &strFile, const QByteArray &content)
{
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray read(const QString &strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

} // namespace

class tst_PluginManager : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_settings;

private slots:
    void theLifeOfRealLibraries()
    {
        Host host({"good"}, m_settings.path(), {"--depth", "20", "a.kelpa", "--rusty", "/b/../c.kelpa"});
        QCOMPARE(host.finish(), 0);
        const QStringList expected = {"catalogues", "base construct", "anchor construct", "base initialize",
            "anchor initialize --depth 20 --rusty", "anchor extensionsInitialized",
            "base extensionsInitialized", "anchor event", "anchor after", "base event", "base after",
            "base delayedInitialize", "anchor delayedInitialize", "done /tmp/a.kelpa /c.kelpa", "setting ",
            "anchor aboutToShutdown", "base aboutToShutdown", "anchor destroy", "base destroy"};
        QCOMPARE(host.lines(), expected);
        QCOMPARE(host.errors(), QString());
    }

    void theGuidesMinimalPluginWorks()
    {
        Host host({"minimal"}, m_settings.path(), {"--greet=sea"});
        QCOMPARE(host.finish(), 0);
        QCOMPARE(host.errors(), "Hello, sea\n");
    }

    void badLibrariesHarmNobodyElse()
    {
        Host host({"good", "bad"}, m_settings.path());
        QCOMPARE(host.finish(), 0);
        QVERIFY(host.lines().contains("anchor delayedInitialize"));
        QVERIFY(!host.lines().contains("behind initialize"));
        QStringList lines = host.errors().split('\n', Qt::SkipEmptyParts);
        lines.sort();
        QStringList expected;
        const auto expect = [&expected](const char *pName, const char *pPhase, const char *pReason) {
            expected.append(QString("kelpa.extensionsystem: plug-in \"%1\", %2/lib%1.so, phase %3: %4")
                                .arg(pName, testPath("bad"), pPhase, pReason));
        };
        expect("behind", "initialize", "needs failing 1.0.0, which failed: no licence for the sea");
        expect("broken", "read", "broken metadata: \"Version\" is no version: \"one\"");
        expect("failing", "initialize", "no licence for the sea");
        expect("noise", "read", "broken metadata: the library is incomplete");
        expect("stranger", "load", "its object, a Stranger, is no ExtensionSystem::IPlugin");
        expect("throwing", "load", "exception: broken on purpose");
        QCOMPARE(lines, expected);
    }

    void options_data()
    {
        const auto row = columns<QString, int, QString, QString>("options", "exitCode", "out", "err");
        row("the version is printed", "--version", 0, "Host 1.0", "");
        row("help lists the program's options", "--help", 0, "--plugin-path <folder>", "");
        row("help lists a plug-in's options", "--help", 0, "--depth <fathoms>", "");
        row("an unknown option ends the start", "--shallow", 1, "", "Unknown option 'shallow'.\n");
        row("an option without its value ends the start", "--depth", 1, "",
            "Missing value after '--depth'.\n");
        row("leaving out a dependency stops its user", "--no-load base --plugin-path " TEST_ROOT "/minimal",
            0, "done", "phase resolve: needs base, which was left out\n");
        row("an unknown plug-in to load is told", "--load anchor --load whale", 0, "done",
            "\"whale\", phase resolve: named on the command line, but there is no such plug-in\n");
        row("nothing left to run ends the start", "--no-load base", 1, "",
            "Host cannot start.\nNo plug-in could be loaded");
        row("a missing folder is told", "--plugin-path /no/such", 0, "done",
            "/no/such, phase read: there is no such folder\n");
        row("the profile names plug-in and phase", "--profile", 0, "done",
            " ms  anchor extensionsInitialized\n");
    }
    void options()
    {
        QFETCH(QString, options);
        QFETCH(int, exitCode);
        QFETCH(QString, out);
        QFETCH(QString, err);
        Host host({"good"}, m_settings.path(), options.split(' '));
        QCOMPARE(host.finish(), exitCode);
        const QString strLines = host.lines().join('\n');
        QVERIFY2(strLines.contains(out), qPrintable(strLines));
        QVERIFY2(host.errors().contains(err), qPrintable(host.errors()));
        QCOMPARE(host.errors().isEmpty(), err.isEmpty());
    }

    // Where there is no display, two of them need none; also in a language that is read from the right.
    void theRealProgramEndsInGoodOrderWhenItHasNothingToRun()
    {
        QTemporaryDir folder;
        write(folder.filePath("KelpaStudio.ini"), "[Kelpa]\nLanguage=ar_EG\n");
        const std::pair<const char *, int> ends[] = {{"--version", 0}, {"--help", 0}, {"--shallow", 1}};
        for (const auto &[pOption, nExitCode] : ends) {
            const QString strPlatform = nExitCode ? "offscreen" : "xcb";
            ChildProcess program(QStringLiteral(KELPASTUDIO), {"--settings-path", folder.path(), pOption},
                {{"QT_QPA_PLATFORM", strPlatform}, {"DISPLAY", ""}});
            QCOMPARE(program.finish(), nExitCode);
        }
    }

    void aRequiredPluginThatFailsEndsTheStart_data()
    {
        const auto row = columns<QString, QString, QString>("folder", "needs", "message");
        row("while it is initialised", "required", "base",
            "/required/libneeded.so, phase initialize: no licence for the sea");
        row("in its late work", "requiredlate", "base",
            "/requiredlate/liblate.so, phase delayedInitialize: exception: broken on purpose");
        row("and only the program knows that it is", "bad", "failing",
            "/bad/libfailing.so, phase initialize: no licence for the sea");
        row("for its library broke off", "bad", "noise",
            "/bad/libnoise.so, phase read: broken metadata: the library is incomplete");
        row("for it is not there", "bad", "ghost", "phase read: broken metadata: there is no such library");
    }
    void aRequiredPluginThatFailsEndsTheStart()
    {
        QFETCH(QString, folder);
        QFETCH(QString, needs);
        QFETCH(QString, message);
        Host host({"good", qPrintable(folder)}, m_settings.path(), {}, {{"HOST_NEEDS", needs}});
        QCOMPARE(host.finish(), 1);
        QVERIFY2(host.errors().contains("Host cannot start.\n"), qPrintable(host.errors()));
        QVERIFY2(host.errors().endsWith(message + '\n'), qPrintable(host.errors()));
        QVERIFY(!host.lines().contains("done "));
        QCOMPARE(host.lines().contains("base destroy"), host.lines().contains("base construct"));
    }

    void settingsFaults_data()
    {
        // "folder" makes a folder of the store; "after" is what it holds in the end.
        const auto row = columns<QByteArray, int, int, QString, QByteArray>(
            "content", "fileMode", "folderMode", "reason", "after");
        const QByteArray sound = "[sea]\nlevel=3\n", written = "[sea]\nlevel=7\n", none = "(unreadable)";
        row("a sound store has none", sound, 0666, 0777, "", written);
        row("no store is no fault", "", 0644, 0777, "", written);
        row("a store that may only be written", sound, 0222, 0777, "there is no permission to read it",
            sound);
        row("a store nobody may write", sound, 0444, 0755, "it cannot be written", sound);
        row("a folder nobody may write", "", 0644, 0555, "it cannot be written", none);
        row("noise in the store", "\x01\x02 noise\nmore\n", 0666, 0777,
            "it is damaged and was read as far as possible", written);
        row("a folder in its place", "folder", 0755, 0777, "it is a folder, not a file", none);
        row("a full disk", sound, 0666, 0777, "it cannot be written", sound);
    }
    void settingsFaults()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, fileMode);
        QFETCH(int, folderMode);
        QFETCH(QString, reason);
        QTemporaryDir folder("/tmp/kelpasettings-XXXXXX");
        const QString strStore = folder.filePath("KelpaStudio.ini");
        if (content == "folder")
            QVERIFY(QDir().mkdir(strStore));
        else if (!content.isEmpty())
            write(strStore, content);
        ::chmod(qPrintable(strStore), fileMode);
        ::chmod(qPrintable(folder.path()), folderMode);

        const bool bFull = QByteArray(QTest::currentDataTag()) == "a full disk";
        Host host({"good"}, folder.path(), {},
            {{bFull ? "HOST_DISK_FULL" : "HOST_DROPS_ROOT", "1"}, {"HOST_WRITES", "1"}});
        QCOMPARE(host.finish(), 0);
        const QString strFault = "fault " + strStore + ": " + reason;
        QCOMPARE(host.lines().filter("fault "), reason.isEmpty() ? QStringList() : QStringList(strFault));
        ::chmod(qPrintable(folder.path()), 0777);
        ::chmod(qPrintable(strStore), 0755);
        QTEST(read(strStore), "after");
        QCOMPARE(
            read(strStore + ".broken"), reason.contains("damaged") ? content : QByteArray("(unreadable)"));
    }

    void aSecondDamageKeepsTheFirstCopy()
    {
        QTemporaryDir folder;
        const QString strStore = folder.filePath("KelpaStudio.ini");
        for (const char *pNoise : {"first", "second", "second"}) {
            write(strStore, pNoise);
            Q_UNUSED(SettingsStore::openUser(folder.path()))
        }
        QCOMPARE(read(strStore + ".broken"), QByteArray("first"));
        QCOMPARE(read(strStore + ".broken2"), QByteArray("second"));
        QVERIFY(!QFile::exists(strStore + ".broken3"));
    }

    void thePoolHoldsEachObjectOnce()
    {
        PluginManager::addObject(this); // without a manager there is nothing, which is no error
        PluginManager::checkSettings();
        QVERIFY(!PluginManager::instance() && !PluginManager::listLock() && !PluginManager::settings());
        QVERIFY(PluginManager::objects<QObject>().isEmpty() && PluginManager::arguments().isEmpty());
        QVERIFY(PluginManager::plugins().isEmpty());
        PluginManager manager;
        QTimer timer;
        QObject other;
        auto *pDying = new QTimer;
        PluginManager::addObject(&other);
        PluginManager::addObject(pDying);
        PluginManager::addObject(&timer);
        PluginManager::addObject(&timer);
        PluginManager::addObject(nullptr);
        {
            const QReadLocker outer(PluginManager::listLock());
            const QReadLocker inner(PluginManager::listLock());
            QCOMPARE(PluginManager::allObjects(), QObjectList({&other, pDying, &timer}));
            QCOMPARE(PluginManager::object<QTimer>(), pDying);
        }
        delete pDying;
        QCOMPARE(PluginManager::objects<QTimer>(), QList<QTimer *>({&timer}));
        PluginManager::removeObject(&other);
        PluginManager::removeObject(&other);
        QTest::ignoreMessage(QtWarningMsg, "Plug-ins left objects in the pool: QTimer");
        manager.shutdown();
        QVERIFY(PluginManager::allObjects().isEmpty());
        QCOMPARE(PluginManager::object<QTimer>(), nullptr);
    }

    void threadsMayUseThePool()
    {
        PluginManager manager;
        const auto work = [] {
            for (int i = 0; i < 2000; ++i) {
                QObject object;
                PluginManager::addObject(&object);
                if (!PluginManager::objects<QObject>().contains(&object))
                    qFatal("an object got lost");
                if (i % 2)
                    PluginManager::removeObject(&object);
            }
        };
        std::thread first(work);
        std::thread second(work);
        first.join();
        second.join();
        QVERIFY(PluginManager::allObjects().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_PluginManager)
#include "tst_pluginmanager.moc"
