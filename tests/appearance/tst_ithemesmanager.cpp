// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <appearance/ithemesmanager.h>
#include <appearance/kpappstyle.h>
#include <mainwindow.h>

using ExtensionSystem::PluginManager;

// The manager lives as long as the process: it lists everything again at each initialize() and keeps the
// sheet of "Dark". So the cases look at the part of the list that they added, and those that need a manager
// without a theme "Dark", or without its sheet, come first.
class tst_IThemesManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_folder = QDir(QCoreApplication::applicationDirPath() + "/resources/styles");
        m_folder.removeRecursively();
        QVERIFY(m_folder.mkpath("."));
        m_nListed = manager().getThemes().size();
    }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
        manager().setSettings(nullptr);
        m_pWindow.reset();
        m_pProgram.reset();
        m_folder.removeRecursively();
    }

    void anotherThemeIsAppliedAsItStandsAndLostWhenTheDensityChanges()
    {
        install("app_light.qss", "a{}/*$10px$*/");
        showOn(192);
        settings()->setValue("Kelpa/Theme", "Light");
        QVERIFY(manager().initialize());
        QCOMPARE(qApp->styleSheet(), "a{}/*$10px$*/");
        manager().processDPIChange();
        QCOMPARE(qApp->styleSheet(), QString());
        QCOMPARE(manager().getCurrentThemeId(), "Light");
        QCOMPARE(listed(), QStringList({"Light", "Light"}));
    }

    // Each sheet is a rule for its name; one that ends with a stroke is a folder and cannot be read.
    void starts_data()
    {
        const auto row = columns<QStringList, QString, QString, QString, QString, QStringList>(
            "files", "theme", "sheet", "current", "saved", "listed");
        const QString s = "app_light.qss";
        row("nothing to fall back to", {s}, "Gone", "", "", "Gone", {"Light"});
        row("dark", {"app_dark.qss"}, "Dark", "app_dark.qss", "Dark", "Dark", {"Dark"});
        row("another", {"app_dark.qss", s, "win_" + s}, "Light", s, "Light", "Light", {"Dark", "Light"});
        row("none of those that are there", {s, "app_dark.qss"}, "Gone", "", "", "Dark", {"Dark", "Light"});
        row("the platform's part alone", {"win_app_dark.qss"}, "Dark", "win_app_dark.qss", "", "Dark", {});
        row("an unreadable one", {s + '/'}, "Light", "", "", "Dark", {"Light"});
        row("names from files",
            {"app_light_blue.qss", "app_.qss", "app_x.y.qss", "app_Dark.qss", "apple.qss", "app_b.txt"},
            "Gone", "", "", "Dark", {"", "Dark", "Light_blue", "X.y"});
    }
    void starts()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, theme);
        QFETCH(QString, current);
        for (const QString &strFile : files)
            strFile.endsWith('/') ? void(m_folder.mkpath(strFile))
                                  : install(qPrintable(strFile), (strFile + "{}").toUtf8());
        settings()->setValue("Kelpa/Theme", theme);
        QCOMPARE(manager().initialize(), !current.isEmpty());
        QVERIFY(hasAppStyle());
        QTEST(qApp->styleSheet().remove("{}"), "sheet");
        QTEST(manager().getSaveThemeId(), "saved");
        QTEST(listed(), "listed");
        QCOMPARE(manager().getCurrentThemeId(), current);
        QCOMPARE(manager().getCurrentThemeName(), current);
    }

    void freshSettingsAreDarkWithThePlatformInFront()
    {
        install("app_dark.qss", "base{a:$10px$}\xc3\xa4");
        install("win_app_dark.qss", "platform{b:$1px$}\r\n");
        showOn(192);
        QVERIFY(manager().initialize());
        QCOMPARE(qApp->styleSheet(), QString::fromUtf8("platform{b:2px}\nbase{a:20px}\xc3\xa4"));
        QCOMPARE(settings()->value("Kelpa/Theme").toString(), "Dark");
        QCOMPARE(manager().getCurrentThemeId(), "Dark");
        QVERIFY(hasAppStyle());

        showOn(120);
        QCOMPARE(qApp->styleSheet(), QString::fromUtf8("platform{b:2px}\nbase{a:20px}\xc3\xa4"));
        manager().processDPIChange();
        QCOMPARE(qApp->styleSheet(), QString::fromUtf8("platform{b:1px}\nbase{a:12px}\xc3\xa4"));
        QCOMPARE(listed(), QStringList({"Dark"}));
    }

    void onlyListedIdsAreSavedAndTheThemeInForceStays()
    {
        install("app_sepia.qss", "");
        install("app_dark.qss", "dark{}");
        manager().initialize();
        QVERIFY(!manager().saveThemes("sepia"));
        QVERIFY(!manager().saveThemes(QString("Sepi")));
        QCOMPARE(manager().getSaveThemeId(), "Dark");
        QVERIFY(manager().saveThemes("Sepia"));
        QCOMPARE(settings()->value("Kelpa/Theme").toString(), "Sepia");
        QCOMPARE(manager().getCurrentThemeId(), "Dark");
        QCOMPARE(qApp->styleSheet(), "dark{}");
        QSettings other(m_pProgram->filePath("other.ini"), QSettings::IniFormat);
        manager().setSettings(&other);
        QCOMPARE(manager().getSaveThemeId(), "Dark");
    }

private:
    static IThemesManager &manager() { return IThemesManager::getInstance(); }
    static QSettings *settings() { return PluginManager::settings(); }

    // With a sheet the style of the application is one around it, which owns it.
    static bool hasAppStyle()
    {
        return QApplication::style()->inherits("KPAppStyle")
            || QApplication::style()->findChild<KPAppStyle *>();
    }

    [[nodiscard]] QStringList listed() const
    {
        QStringList result;
        for (const ThemesInfo *pInfo : manager().getThemes().mid(m_nListed)) {
            result.append(pInfo->id);
            if (pInfo->name != pInfo->id)
                result.append(pInfo->name);
        }
        return result;
    }

    void install(const char *pName, const QByteArray &sheet) const
    {
        QFile file(m_folder.filePath(QLatin1String(pName)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(sheet) == sheet.size());
    }

    void showOn(int nDPI)
    {
        if (!m_pWindow)
            m_pWindow = std::make_unique<MainWindow>(nullptr);
        m_pWindow->setScreen(screenOf(nDPI));
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
    QDir m_folder;
    qsizetype m_nListed = 0;
};

QTEST_MAIN(tst_IThemesManager)
#include "tst_ithemesmanager.moc"
