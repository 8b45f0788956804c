// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <appearance/ilanguagemanager.h>
#include <irecentfilesmanager.h>
#include <mainwindow.h>

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QTranslator>
#include <QUndoGroup>

#include <private/qabstractfileengine_p.h>

#include <atomic>

using ExtensionSystem::PluginManager;

namespace {

// The menu as a user reads it: text, keys in brackets, "-" before what is disabled, one tab per level.
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

// A catalogue that translates the id of "New".
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

// Counts whoever turns to a file below /silent, a drive that does not answer.
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

const QString s_recentKey = QStringLiteral("Kelpa/RecentProjects");

} // namespace

class tst_MainWindowCommands : public QObject
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
        m_pProgram = std::make_unique<TestProgram>();
        ILanguageManager::getInstance().setSettings(PluginManager::settings());
        m_pWindow = std::make_unique<MainWindow>(nullptr);
        m_pFactory = std::make_unique<FakeFactory>();
    }

    void cleanup()
    {
        for (const auto &pDocument : std::as_const(m_pFactory->documents))
            delete pDocument;
        for (const auto &pEditor : std::as_const(m_pFactory->editors))
            delete pEditor;
        m_pFactory.reset();
        m_pWindow.reset();
        m_pProgram.reset();
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
        m_pWindow = std::make_unique<MainWindow>(nullptr);
        QVERIFY(ActionManager::getAction("translated"));
        QVERIFY(!m_pWindow->getFileToolbar()->actions().first()->text().contains("New"));
        emit m_pWindow->dpiChanged(150);
        m_pFactory->strNewPath = m_pProgram->filePath("new.kelpa");
        ActionManager::getAction("translated")->getAction()->trigger();
        QCOMPARE(EditorManager::getEditors().size(), 1);
    }

    void savingIsOfferedExactlyWhenItMakesSense()
    {
        FakeDocument *pDoc = load("a.kelpa");
        pDoc->bSaveAsSucceeds = false;
        m_pWindow->fileSaveAs();
        QVERIFY(!enabled("File.Save"));
        pDoc->modify();
        m_pWindow->fileSaveAs();
        QVERIFY(enabled("File.Save"));
        pDoc->bSaveSucceeds = false;
        m_pWindow->fileSave();
        QVERIFY(enabled("File.Save"));
        pDoc->bSaveSucceeds = true;
        m_pWindow->fileSave();
        QVERIFY(!enabled("File.Save"));

        pDoc->setIsTempDocument(true);
        pDoc->modify();
        pDoc->stack.setClean();
        QVERIFY2(enabled("File.Save"), "a temporary project can always be saved");
        m_pWindow->fileSaveAs();
        QVERIFY(enabled("File.Save"));
        pDoc->bSaveAsSucceeds = true;
        pDoc->strSaveAsName = "/p/kept.kelpa";
        m_pWindow->fileSaveAs();
        QVERIFY(!enabled("File.Save"));
        pDoc->modify();
        QVERIFY(enabled("File.Save"));
        emit pDoc->requestClosing(false);
        QVERIFY2(!enabled("File.Save"), "there is nothing to save");
    }

    void closeAndSaveAsFollowTheActiveEditor()
    {
        const auto all = [] {
            const bool bMenu = ActionManager::getActionContainer("File.SaveAs")->getMenu()->isEnabled();
            return QList<bool> {bMenu, enabled("File.SaveAs.Project"), enabled("File.Close")};
        };
        const QList<bool> on(3, true), off(3, false);
        QCOMPARE(all(), off);
        FakeDocument *pDoc = load("a.kelpa");
        QCOMPARE(all(), on);
        load("b.kelpa");
        emit pDoc->requestClosing(false);
        QCOMPARE(all(), on);
        m_pWindow->fileClose();
        QCOMPARE(all(), off);
        IEditor empty;
        EditorManager::addEditor(&empty);
        EditorManager::activateEditor(&empty);
        QCOMPARE(all(), off);
        QVERIFY(!enabled("File.Save"));
    }

    void recentProjectsAreNumberedAndOddNamesKept()
    {
        const QString strLong = "/p/" + QString(4000, 'x') + ".kelpa";
        PluginManager::settings()->setValue(
            s_recentKey, QStringList({"/a & b/c d.kelpa", QString::fromUtf8("/ж/動画.kelpa"), strLong}));
        m_pWindow->updateRecentFileActions();
        QMenu *pMenu = ActionManager::getActionContainer("File.Recent_Projects")->getMenu();
        QVERIFY(pMenu->isEnabled());
        QCOMPARE(lines(pMenu->actions()),
            QStringList({"1. /a & b/c d.kelpa", QString::fromUtf8("2. /ж/動画.kelpa"), "3. " + strLong}));

        PluginManager::settings()->setValue(s_recentKey, QStringList(30, "/other/program.kelpa"));
        m_pWindow->updateRecentFileActions();
        QCOMPARE(lines(pMenu->actions()).size(), 10);
        QVERIFY(!ActionManager::getAction("File.Recent_Projects.Project_0"));
        QVERIFY(!ActionManager::getAction("File.Recent_Projects.Project_11"));

        PluginManager::settings()->remove(s_recentKey);
        m_pWindow->updateRecentFileActions();
        QVERIFY(!pMenu->isEnabled() && lines(pMenu->actions()).isEmpty());
    }

    void theMenuOpensWithoutAskingADriveThatDoesNotAnswer()
    {
        const SilentDrive drive;
        PluginManager::settings()->setValue(
            s_recentKey, QStringList({"/silent/a.kelpa", "/silent/b.kelpa", "/silent/b"}));
        m_pWindow.reset();
        m_pWindow = std::make_unique<MainWindow>(nullptr);
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

    void anEntryOpensItsProject()
    {
        load("a.kelpa");
        load("b.kelpa");
        m_pWindow->fileClose();
        m_pWindow->fileClose();
        ActionManager::getAction("File.Recent_Projects.Project_2")->getAction()->trigger();
        QCOMPARE(m_pFactory->documents.last()->getFileName(), m_pProgram->filePath("a.kelpa"));
        const QMenu *pMenu = ActionManager::getActionContainer("File.Recent_Projects")->getMenu();
        QCOMPARE(lines(pMenu->actions()).first(), "1. " + m_pProgram->filePath("a.kelpa"));
    }

    void anEntryThatIsGoneIsRemovedOnlyWhenTheUserAgrees()
    {
        PluginManager::settings()->setValue(s_recentKey, QStringList({"/gone/away.kelpa"}));
        m_pWindow->updateRecentFileActions();
        QAction *pEntry = ActionManager::getAction("File.Recent_Projects.Project_1")->getAction();
        BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
        pEntry->trigger();
        QCOMPARE(IRecentFilesManager::getInstance()->getRecentFiles().size(), 1);
        pEntry->trigger();
        QVERIFY(IRecentFilesManager::getInstance()->getRecentFiles().isEmpty());
        QVERIFY(!pEntry->isVisible());
        QCOMPARE(boxes.boxes.size(), 2);
        QCOMPARE(boxes.boxes.first().text,
            "The project [/gone/away.kelpa] no longer exists.\nDo you want to remove this entry from "
            "history?");
        QCOMPARE(boxes.boxes.first().defaultButton, QMessageBox::Yes);
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
    FakeDocument *load(const char *pName)
    {
        m_pWindow->loadFile(m_pProgram->write(pName));
        return m_pFactory->documents.last();
    }

    static bool enabled(const char *pId)
    {
        return ActionManager::getAction(QLatin1String(pId))->getAction()->isEnabled();
    }

    // Empty where the desktop has no such standard.
    static QString standardKeys(QKeySequence::StandardKey key)
    {
        const QString strKeys = QKeySequence(key).toString(QKeySequence::PortableText);
        return strKeys.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(strKeys);
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
    std::unique_ptr<FakeFactory> m_pFactory;
};

QTEST_MAIN(tst_MainWindowCommands)
#include "tst_mainwindow_commands.moc"
