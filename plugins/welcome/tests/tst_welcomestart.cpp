// SPDX-License-Identifier: MIT
// The program, started as a user does: when it takes the browser engine in, and how it explains its options.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <support/rows.h>

namespace {

/// The program on settings of its own.
class Program
{
public:
    Program(const QStringList &arguments, const QByteArray &settings)
    {
        QFile file(m_folder.filePath(QStringLiteral("KelpaStudio.ini")));
        if (file.open(QIODevice::WriteOnly))
            file.write(settings);
        file.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("kelpa.*.debug=true"));
        environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        start(&m_process, QStringList(QStringLiteral("--profile")) + arguments);
    }
    ~Program()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Program)

    /// Waits until the program has logged this.
    bool says(const QByteArray &text)
    {
        return QTest::qWaitFor(
            [&] {
                m_log += m_process.readAll();
                return m_log.contains(text);
            },
            60000);
    }

    /// A second start, once this one is up, hands a project to it: when that is shown, the turns of the event
    /// loop in which the page would have come up are over.
    bool showsAnotherProject()
    {
        QProcess second;
        if (!says("since the process started"))
            return false;
        start(&second, {example("card.kelpa")});
        return second.waitForFinished(60000) && says("card.kelpa");
    }

    /// Looks into "/proc".
    [[nodiscard]] bool hasEngine() const
    {
        QFile maps(QStringLiteral("/proc/%1/maps").arg(m_process.processId()));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libQt6WebEngineCore");
    }

    static QString example(const char *pName)
    {
        return QFileInfo(QStringLiteral(KELPA_PROGRAM)).path() + QLatin1String("/examples/")
            + QLatin1String(pName);
    }

    [[nodiscard]] const QByteArray &log() const { return m_log; }

private:
    void start(QProcess *pProcess, const QStringList &arguments) const
    {
        pProcess->start(QStringLiteral(KELPA_PROGRAM),
            QStringList {QStringLiteral("--settings-path"), m_folder.path()} + arguments);
    }

    QTemporaryDir m_folder;
    QProcess m_process;
    QByteArray m_log;
};

} // namespace

class tst_WelcomeStart : public QObject
{
    Q_OBJECT

private slots:
    void noEngineWithoutThePage_data()
    {
        const auto row = columns<QStringList, QByteArray>("arguments", "settings");
        row("a project on the command line", QStringList(Program::example("banner.kelpa")), QByteArray());
        row("switched off for this run", QStringList("--no-welcome"), QByteArray());
        row("switched off in the preferences", QStringList(), QByteArray("[Welcome]\nShowPage=false\n"));
    }

    void noEngineWithoutThePage()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, settings);
        if (!QFile::exists("/proc/self/maps"))
            QSKIP("What a process has loaded is told by /proc only.");
        Program program(arguments, settings);
        QVERIFY2(program.showsAnotherProject(), program.log().constData());
        QVERIFY(!program.hasEngine());
        QVERIFY(!program.log().contains("Window painted"));
    }

    void pageComesAfterTheWindow()
    {
        Program program({}, {});
        QVERIFY2(program.says("Page painted"), program.log().constData());
        if (QFile::exists("/proc/self/maps"))
            QVERIFY(program.hasEngine());
        QVERIFY(program.log().indexOf("Window painted") < program.log().indexOf("Page painted"));
    }

    // The engine would end the program.
    void programLivesOnWithoutPartsOfTheEngine()
    {
        for (const char *pVariable : {"QTWEBENGINEPROCESS_PATH", "QTWEBENGINE_RESOURCES_PATH"}) {
            qputenv(pVariable, "/"); // where something is, but no such file
            Program program({}, {});
            qunsetenv(pVariable);
            QVERIFY2(program.says("projects are listed without it"), program.log().constData());
            QVERIFY2(program.log().contains("there is no /"), program.log().constData());
            QVERIFY(!program.hasEngine());
        }
    }

    void optionsAreExplainedInTheLanguageOfTheUser()
    {
        const QByteArray german("[Kelpa]\nLanguage=de_DE\n");
        Program help({"--help"}, german);
        QVERIFY2(help.says("Die Startseite in diesem Lauf nicht zeigen."), help.log().constData());
        QVERIFY2(help.log().contains("Diese Hilfe ausgeben") && !help.log().contains("Options:"),
            help.log().constData());
        Program fault({"--rust"}, german);
        QVERIFY2(fault.says("Unbekannte Option"), fault.log().constData());
    }
};

QTEST_GUILESS_MAIN(tst_WelcomeStart)
#include "tst_welcomestart.moc"
