// SPDX-License-Identifier: MIT
// Menus, commands and the file tool bar: what there is stands in tables, one loop builds it.
#include "mainwindow.h"

#include "actionmanager/actioncontainer.h"
#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "actionmanager/contextmanager.h"
#include "appearance/ilanguagemanager.h"
#include "document/documentmanager.h"
#include "document/idocument.h"
#include "iui.h"
#include "projectcontroller.h"
#include "ui/imainmenuwidget.h"

#include <QActionGroup>
#include <QApplication>
#include <QLoggingCategory>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QUndoGroup>

/// One entry of the menus, or a command without one.
struct CommandRow
{
    const char *pMenu; // null: in no menu
    const char *pId = nullptr; // null: a separator
    const char *pText = nullptr; // null: a sub-menu
    QKeySequence::StandardKey standardKey = QKeySequence::UnknownKey;
    const char *pKeys = nullptr; // where the platform has no standard
    const char *pDescription = nullptr;
    const char *pIcon = nullptr;
    bool bEnabled = true;
    // As SLOT() gives it, which in a debug build no constant takes. Null: a plug-in connects it.
    const char *pSlot = nullptr;
    bool bTranslatesId = false; // plug-ins that look the command up pass its id through tr() as well
};

namespace {

using Key = QKeySequence::StandardKey;

Q_LOGGING_CATEGORY(lcCommands, "kelpa.core.commands")

const QString s_menuBar = QStringLiteral("Kelpa.MenuBar");
const QString s_languageMenu = QStringLiteral("View.Language");
const QString s_saveAsMenu = QStringLiteral("File.SaveAs");
const QString s_toolBarsMenu = QStringLiteral("View.Tool_Bars");
const QString s_coreImages = QStringLiteral(":/core/images/");
const QString s_designerImages = QStringLiteral(":/designer/images/");
constexpr int s_menuIcon = 2;

struct MenuRow
{
    const char *pId;
    const char *pTitle;
    bool bTopLevel;
};

constexpr MenuRow s_menus[] = {
    {"MenuBar.File", QT_TRANSLATE_NOOP("MainWindow", "&File"), true},
    {"File.Recent_Projects", QT_TRANSLATE_NOOP("MainWindow", "Recent Projects"), false},
    {"File.SaveAs", QT_TRANSLATE_NOOP("MainWindow", "Save As"), false},
    {"MenuBar.Edit", QT_TRANSLATE_NOOP("MainWindow", "&Edit"), true},
    {"MenuBar.View", QT_TRANSLATE_NOOP("MainWindow", "&View"), true},
    {"View.Language", QT_TRANSLATE_NOOP("MainWindow", "Language"), false},
    {"View.Tool_Bars", QT_TRANSLATE_NOOP("MainWindow", "Tool Bars"), false},
    {"MenuBar.Help", QT_TRANSLATE_NOOP("MainWindow", "&Help"), true},
};

constexpr CommandRow s_entries[] = {
    {"MenuBar.File", QT_TRANSLATE_NOOP("MainWindow", "File.New"), QT_TRANSLATE_NOOP("MainWindow", "&New"),
        Key::New, nullptr, QT_TRANSLATE_NOOP("MainWindow", "Create a new project"), "new", true, "1fileNew()",
        true},
    {"MenuBar.File", "File.Open_Project", QT_TRANSLATE_NOOP("MainWindow", "&Open Project"), Key::Open,
        nullptr, QT_TRANSLATE_NOOP("MainWindow", "Open an existing project"), "open", true, "1fileOpen()"},
    {"MenuBar.File", "File.Recent_Projects"},
    {"MenuBar.File"},
    {"MenuBar.File", "File.Save", QT_TRANSLATE_NOOP("MainWindow", "&Save"), Key::Save, nullptr,
        QT_TRANSLATE_NOOP("MainWindow", "Save the current project"), "save", false, "1fileSave()"},
    {"File.SaveAs", "File.SaveAs.Project", QT_TRANSLATE_NOOP("MainWindow", "Other Project"), Key::SaveAs,
        nullptr, QT_TRANSLATE_NOOP("MainWindow", "Save the current project as a new one"), nullptr, false,
        "1fileSaveAs()"},
    {"MenuBar.File", "File.SaveAs"},
    {"MenuBar.File", "File.Close", QT_TRANSLATE_NOOP("MainWindow", "&Close"), Key::Close, nullptr,
        QT_TRANSLATE_NOOP("MainWindow", "Close the current project"), nullptr, false, "1fileClose()"},
    {"MenuBar.File"},
    {"MenuBar.File", "File.Preview_Current_Scene_In_Browser",
        QT_TRANSLATE_NOOP("MainWindow", "Preview Current Scene in Browser"), Key::UnknownKey, "Ctrl+F5"},
    {nullptr, "File.Preview_Project", QT_TRANSLATE_NOOP("MainWindow", "Preview Project in Browser")},
    {"MenuBar.File", "File.Preview_Project_In_Browser",
        QT_TRANSLATE_NOOP("MainWindow", "Preview Project in Browser"), Key::UnknownKey, "F5"},
    {"MenuBar.File"},
    {"MenuBar.File", "File.Export_To_HTML5", QT_TRANSLATE_NOOP("MainWindow", "Export to HTML5"),
        Key::UnknownKey, "Ctrl+Alt+E"},
    {"MenuBar.File", "File.Export_To_Video", QT_TRANSLATE_NOOP("MainWindow", "Export to Video")},
    {"MenuBar.File"},
    // The same default as "File.SaveAs.Project": users of existing shortcut lists expect it here.
    {"MenuBar.File", "File.Exit", QT_TRANSLATE_NOOP("MainWindow", "E&xit"), Key::SaveAs, nullptr,
        QT_TRANSLATE_NOOP("MainWindow", "Quit the program"), nullptr, true, "1fileExit()"},
    {"MenuBar.Edit", "Edit.Preferences", QT_TRANSLATE_NOOP("MainWindow", "&Preferences"), Key::Preferences,
        nullptr, nullptr, "preferences", true, "1onPreferences()"},
    {"MenuBar.View", "View.Language"},
    {"MenuBar.View", "View.Tool_Bars"},
    {"MenuBar.Help", "Help.About", QT_TRANSLATE_NOOP("MainWindow", "About")},
    {"MenuBar.Help", "Help.Help_Contents", QT_TRANSLATE_NOOP("MainWindow", "Help Contents"), Key::UnknownKey,
        "F1", nullptr, nullptr, true, "1onHelpContents()"},
    {"MenuBar.Help", "Help.ReportProblem", QT_TRANSLATE_NOOP("MainWindow", "Report a Problem")},
    {"MenuBar.Help", "Help.ProvideSuggestion", QT_TRANSLATE_NOOP("MainWindow", "Provide a Suggestion")},
    {"MenuBar.Help", "Help.CheckUpdates", QT_TRANSLATE_NOOP("MainWindow", "Check Updates...")},
};

constexpr const char *s_fileToolbar[] = {"File.New", "File.Open_Project", "File.Save", nullptr,
    "File.Preview_Project", "File.Export_To_HTML5", "File.Export_To_Video"};

QKeySequence defaultKeys(const CommandRow &row)
{
    return row.pKeys ? QKeySequence(QLatin1String(row.pKeys)) : QKeySequence(row.standardKey);
}

QAction *commandAction(const QString &strId)
{
    const ContextAction *pCommand = ActionManager::getAction(strId);
    return pCommand ? pCommand->getAction() : nullptr;
}

} // namespace

void MainWindow::initActions()
{
    ActionContainer *pMenuBar = ActionManager::createMenuBarContainer(s_menuBar);
    m_pTitleBar->setMenuBar(pMenuBar->getMenuBar());
    for (const MenuRow &row : s_menus) {
        ActionContainer *pMenu = ActionManager::createMenuContainer(QLatin1String(row.pId), tr(row.pTitle));
        if (row.bTopLevel)
            pMenuBar->insertMenu(pMenu);
    }
    m_pProjects->createRecentCommands();
    for (const CommandRow &row : s_entries) {
        ActionContainer *pMenu = ActionManager::getActionContainer(QLatin1String(row.pMenu));
        if (!row.pId)
            pMenu->insertSeparator(static_cast<ContextAction *>(nullptr));
        else if (!row.pText)
            insertSubMenu(QLatin1String(row.pId), pMenu);
        else
            createCommand(row);
    }
    ActionManager::getActionContainer(s_saveAsMenu)->getMenu()->setEnabled(false);
    connect(DocumentManager::getUndoGroup(), &QUndoGroup::cleanChanged, this,
        &MainWindow::onEnabledSaveActionChanged);
    connect(this, &MainWindow::dpiChanged, this, &MainWindow::reloadIcons, Qt::DirectConnection);
}

void MainWindow::createCommand(const CommandRow &row)
{
    const QString strId = row.bTranslatesId ? tr(row.pId) : QString::fromLatin1(row.pId);
    auto *pAction = new QAction(tr(row.pText), this);
    pAction->setEnabled(row.bEnabled);
    if (row.pIcon) {
        pAction->setIcon(IUi::getIcon(QLatin1String(row.pIcon), s_menuIcon, s_coreImages));
        m_themedIcons.emplace(strId, QLatin1String(row.pIcon));
    }
    if (row.pSlot)
        connect(pAction, SIGNAL(triggered()), this, row.pSlot);
    m_actions.emplace(QLatin1String(row.pId), pAction);

    ContextAction *pCommand = ActionManager::registerAction(pAction, strId, this, false);
    pCommand->setDefaultKeySequence(defaultKeys(row));
    if (row.pDescription)
        pCommand->setDescription(tr(row.pDescription));
    if (row.pMenu)
        ActionManager::getActionContainer(QLatin1String(row.pMenu))->insertAction(pCommand);
}

void MainWindow::insertSubMenu(const QString &strId, ActionContainer *pParent)
{
    if (strId == s_languageMenu) {
        createLanguageMenu(pParent);
        return;
    }
    ActionContainer *pContainer = ActionManager::getActionContainer(strId);
    pParent->insertMenu(pContainer);
    if (strId == s_toolBarsMenu)
        connect(pContainer->getMenu(), &QMenu::aboutToShow, this, &MainWindow::listToolBars);
}

// When it is about to be seen: plug-ins add tool bars at any time.
void MainWindow::listToolBars()
{
    QMenu *pMenu = ActionManager::getActionContainer(s_toolBarsMenu)->getMenu();
    pMenu->clear();
    const auto toolBars = findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QToolBar *pToolBar : toolBars) {
        if (!pToolBar->windowTitle().isEmpty()) // what has no name cannot be chosen
            pMenu->addAction(pToolBar->toggleViewAction());
    }
}

void MainWindow::createLanguageMenu(ActionContainer *pViewMenu)
{
    ActionContainer *pContainer = ActionManager::getActionContainer(s_languageMenu);
    pContainer->getMenu()->setIcon(IUi::getIcon(QStringLiteral("language"), s_menuIcon, s_coreImages));
    pViewMenu->insertMenu(pContainer);

    auto *pGroup = new QActionGroup(this);
    const QString strCurrent = ILanguageManager::getInstance().getCurrentLangId();
    QAction *pFallback = nullptr;
    for (const LanguageInfo *pInfo : ILanguageManager::getInstance().getLanguages()) {
        auto *pAction = new QAction(pInfo->title(), this);
        pAction->setCheckable(true);
        pAction->setData(pInfo->id);
        pContainer->getMenu()->addAction(pAction);
        pGroup->addAction(pAction);
        if (pInfo->id == QLatin1String("en_US"))
            pFallback = pAction;
        if (pInfo->id == strCurrent)
            m_pCurrentLanguage = pAction;
    }
    if (!m_pCurrentLanguage)
        m_pCurrentLanguage = pFallback;
    if (m_pCurrentLanguage)
        m_pCurrentLanguage->setChecked(true);
    connect(pGroup, &QActionGroup::triggered, this, &MainWindow::languageChanged);
}

// The mark stays at the language in which the program runs: a choice takes effect at the next start.
void MainWindow::languageChanged(QAction *pAction)
{
    const QString strId = pAction->data().toString();
    ILanguageManager &manager = ILanguageManager::getInstance();
    if (strId != manager.getCurrentLangId()) {
        IUi::information(this, IUi::getTitle(),
            manager.saveLanguage(strId) ? tr("The language change will take effect from the next run.")
                                        : tr("Failed to change language."),
            QMessageBox::Ok, QMessageBox::Ok);
    }
    pAction->setChecked(false);
    if (m_pCurrentLanguage)
        m_pCurrentLanguage->setChecked(true);
}

void MainWindow::createToolBars()
{
    m_pFileToolbar = addToolBar(tr("File"));
    m_pFileToolbar->setObjectName(QStringLiteral("m_pFileToolbar"));
    m_pFileToolbar->setAccessibleName(m_pFileToolbar->windowTitle());
    for (const char *pId : s_fileToolbar) {
        if (!pId)
            m_pFileToolbar->addSeparator();
        else if (QAction *pAction = commandAction(QLatin1String(pId)))
            m_pFileToolbar->addAction(pAction);
    }
    QAction *pPreview = commandAction(QStringLiteral("File.Preview_Project"));
    auto *pMenu = new QMenu(this);
    pMenu->addAction(commandAction(QStringLiteral("File.Preview_Project_In_Browser")));
    pMenu->addAction(commandAction(QStringLiteral("File.Preview_Current_Scene_In_Browser")));
    pPreview->setMenu(pMenu);
    if (auto *pButton = qobject_cast<QToolButton *>(m_pFileToolbar->widgetForAction(pPreview)))
        pButton->setPopupMode(QToolButton::MenuButtonPopup);
}

void MainWindow::reloadIcons()
{
    IUi::clearIconCache();
    for (const auto &[strId, strIcon] : m_themedIcons) {
        if (QAction *pAction = commandAction(strId))
            pAction->setIcon(IUi::getIcon(strIcon, s_menuIcon, s_designerImages));
        else
            qCDebug(lcCommands) << strId << strIcon;
    }
}

void MainWindow::onDPIChanged()
{
    if (ActionContainer *pContainer = ActionManager::getActionContainer(s_languageMenu))
        pContainer->getMenu()->setIcon(IUi::getIcon(QStringLiteral("language"), s_menuIcon, s_coreImages));
}

void MainWindow::onEnabledSaveActionChanged(bool bDisabled)
{
    const IDocument *pDoc = ProjectController::getActiveDocument();
    const bool bHasFile = pDoc && !pDoc->isTempDocument() && !pDoc->isOpenAsBackup();
    enableCommand("File.Save", bHasFile ? !bDisabled : pDoc != nullptr);
}

void MainWindow::updateSaveAsMenu()
{
    const bool bDocument = ProjectController::getActiveDocument() != nullptr;
    ActionManager::getActionContainer(s_saveAsMenu)->getMenu()->setEnabled(bDocument);
    enableCommand("File.SaveAs.Project", bDocument);
    enableCommand("File.Close", bDocument);
}

void MainWindow::enableCommand(const char *pId, bool bEnabled)
{
    m_actions.at(QLatin1String(pId))->setEnabled(bEnabled);
}

void MainWindow::updateFocusWidget(QWidget *, QWidget *now)
{
    if (qobject_cast<QMenuBar *>(now) || qobject_cast<QMenu *>(now))
        return;
    QWidget *pFocus = QApplication::focusWidget();
    if (!pFocus)
        return;
    const Context context = ContextManager::getActiveContext(pFocus);
    if (!context.id.isEmpty())
        ActionManager::setContext(context.widget);
}
