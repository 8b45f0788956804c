// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <appearance/ilanguagemanager.h>

#include <private/qabstractfileengine_p.h>

#include <atomic>

using ExtensionSystem::PluginManager;

namespace {

// The menu as a user reads it: text, [keys], "(off)" if disabled, "--" for a separator, one tab per level.
QStringList lines(const QList<QAction *> &actions, const QString &strIndent = {})
{
    QStringList result;
    for (QAction *pAction : actions) {
        if (!pAction->isVisible())
            continue;
        QString strLine = strIndent + (pAction->isSeparator() ? QStringLiteral("--") : pAction->text());
        if (!pAction->shortcut().isEmpty())
            strLine += QStringLiteral(" [%1]").arg(pAction->shortcut().toString(QKeySequence::PortableText));
        if (!pAction->isSeparator() && !pAction->isEnabled())
            strLine += QStringLiteral(" (off)");
        result.append(strLine);
        if (pAction->menu())
            result += lines(pAction->menu()->actions(), strIndent + QLatin1Char('\t'));
    }
    return result;
}

// A catalog that translates the id of "New".
class NewIdTranslator : public QTranslator
{
public:
    NewIdTranslator() { QCoreApplication::installTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *pContext, const char *pText, const char *, int) const override
    {
        return QByteArray(pContext) + pText == "MainWindowFile.New" ? QStringLiteral("translated")
                                                                    : QString();
    }
};

// Counts accesses to files below /silent, which stands for a drive that does not answer.
class SilentDrive : public QAbstractFileEngineHandler
{
public:
    using Engine = decltype(std::declval<const QAbstractFileEngineHandler &>().create(QString()));
    Engine create(const QString &strFile) const override
    {
        m_nAsked += strFile.startsWith("/silent");
        return Engine();
    }
    [[nodiscard]] int timesAsked() const { return m_nAsked; }

private:
    mutable std::atomic_int m_nAsked;
};

} // namespace

// The walk through the stage looks at what is enabled, and at the menu of recent projects.
class tst_MainWindowCommands : public DocumentTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QDir().mkpath(QCoreApplication::applicationDirPath() + "/translations");
        QFile catalogue(QCoreApplication::applicationDirPath() + "/translations/app_de_DE.qm");
        QVERIFY(catalogue.open(QIODevice::WriteOnly));
        ILanguageManager::getInstance().initialize();
    }

    void init()
    {
        DocumentTest::init();
        ILanguageManager::getInstance().setSettings(PluginManager::settings());
    }

    void menusReadAsDesigned()
    {
        const QMenuBar *pMenuBar = ActionManager::getActionContainer("Kelpa.MenuBar")->getMenuBar();
        const QStringList expected = {"&File", "\t&New [Ctrl+N]", "\t&Open Project [Ctrl+O]",
            "\tRecent Projects (off)", "\t--", "\t&Save [Ctrl+S] (off)", "\tSave As (off)",
            "\t\tOther Project" + standardKeys(QKeySequence::SaveAs) + " (off)",
            "\t&Close" + standardKeys(QKeySequence::Close) + " (off)", "\t--",
            "\tPreview Current Scene in Browser [Ctrl+F5]", "\tPreview Project in Browser [F5]", "\t--",
            "\tExport to HTML5 [Ctrl+Alt+E]", "\tExport to Video", "\t--",
            "\tE&xit" + standardKeys(QKeySequence::SaveAs), "&Edit",
            "\t&Preferences" + standardKeys(QKeySequence::Preferences), "&View", "\tLanguage",
            "\t\tAmerican English (United States)", "\t\tDeutsch (Germany)", "\tTool Bars", "&Help",
            "\tAbout", "\tHelp Contents [F1]", "\tReport a Problem", "\tProvide a Suggestion",
            "\tCheck Updates..."};
        QCOMPARE(lines(pMenuBar->actions()), expected);
        QCOMPARE(ActionManager::getAction("File.Save")->getDescription(), "Save the current project");
        QCOMPARE(ActionManager::getAction("Help.About")->getDescription(), QString());
    }

    void toolBarHoldsTheCommandsOfProjectsAndComesBack()
    {
        QToolBar *pBar = m_pWindow->getFileToolbar();
        QCOMPARE(pBar->objectName(), "m_pFileToolbar");
        QCOMPARE(lines(pBar->actions()),
            QStringList({"&New [Ctrl+N]", "&Open Project [Ctrl+O]", "&Save [Ctrl+S] (off)", "--",
                "Preview Project in Browser", "\tPreview Project in Browser [F5]",
                "\tPreview Current Scene in Browser [Ctrl+F5]", "Export to HTML5 [Ctrl+Alt+E]",
                "Export to Video"}));
        m_pWindow->addToolBar("Late");
        pBar->hide();
        QMenu *pMenu = ActionManager::getActionContainer("View.Tool_Bars")->getMenu();
        emit pMenu->aboutToShow();
        QCOMPARE(lines(pMenu->actions()), (QStringList {"File", "Late"}));
        pMenu->actions().first()->trigger();
        QVERIFY(!pBar->isHidden());
    }

    void aTranslatedIdOfNewLeavesAWindowThatWorks()
    {
        m_pWindow.reset();
        const NewIdTranslator catalogue;
        m_pWindow = std::make_unique<TestWindow>();
        QVERIFY(ActionManager::getAction("translated"));
        QVERIFY(!m_pWindow->getFileToolbar()->actions().first()->text().contains("New"));
        emit m_pWindow->dpiChanged(150);
        m_pFactory->strNewPath = m_pProgram->filePath("new.kelpa");
        ActionManager::getAction("translated")->getAction()->trigger();
        QCOMPARE(EditorManager::getEditors().size(), 1);
    }

    void withoutADocumentThereIsNothingToSaveOrClose()
    {
        IEditor empty;
        load("a.kelpa");
        EditorManager::addEditor(&empty);
        EditorManager::activateEditor(&empty);
        for (const char *pId : {"File.Save", "File.SaveAs.Project", "File.Close"})
            QVERIFY2(!ActionManager::getAction(pId)->getAction()->isEnabled(), pId);
        m_pWindow->fileSave();
        m_pWindow->fileSaveAs();
        m_pWindow->fileClose();
        QCOMPARE(EditorManager::getEditors().size(), 2);
    }

    void theMenuOpensWithoutAskingADriveThatDoesNotAnswer()
    {
        const SilentDrive drive;
        PluginManager::settings()->setValue(
            "Kelpa/RecentProjects", QStringList({"/silent/a.kelpa", "/silent/b.kelpa", "/silent/b"}));
        m_pWindow.reset();
        m_pWindow = std::make_unique<TestWindow>();
        m_pWindow->show();
        load("open.kelpa");
        QMenu *pMenu = ActionManager::getActionContainer("File.Recent_Projects")->getMenu();
        pMenu->popup({});
        QVERIFY(QTest::qWaitForWindowExposed(pMenu));
        QCOMPARE(lines(pMenu->actions()).last(), "4. /silent/b");
        pMenu->close();
        QCOMPARE(drive.timesAsked(), 0);
        BoxAnswers boxes({QMessageBox::No});
        ActionManager::getAction("File.Recent_Projects.Project_2")->getAction()->trigger();
        QVERIFY(drive.timesAsked() > 0);
    }

    void anotherLanguageIsSavedAndTheMarkStays()
    {
        QMenu *pMenu = ActionManager::getActionContainer("View.Language")->getMenu();
        QAction *pEnglish = pMenu->actions().at(0), *pGerman = pMenu->actions().at(1);
        QVERIFY(pEnglish->isChecked());
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        pEnglish->trigger();
        QVERIFY(boxes.boxes.isEmpty() && pEnglish->isChecked());
        pGerman->trigger();
        QCOMPARE(boxes.texts(), QStringList({"The language change will take effect from the next run."}));
        QCOMPARE(ILanguageManager::getInstance().getSaveLangId(), "de_DE");
        QVERIFY(pEnglish->isChecked() && !pGerman->isChecked());
        pGerman->setData("xx_XX");
        pGerman->trigger();
        QCOMPARE(boxes.texts().last(), "Failed to change language.");
        QVERIFY(pEnglish->isChecked() && !pGerman->isChecked());
    }

private:
    // Empty where the desktop has no such standard.
    static QString standardKeys(QKeySequence::StandardKey key)
    {
        const QString strKeys = QKeySequence(key).toString(QKeySequence::PortableText);
        return strKeys.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(strKeys);
    }
};

QTEST_MAIN(tst_MainWindowCommands)
#include "tst_mainwindow_commands.moc"
