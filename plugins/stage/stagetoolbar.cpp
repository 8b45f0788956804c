// SPDX-License-Identifier: MIT
#include "stagetoolbar.h"

#include "stageeditor.h"
#include "stageview.h"

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <document/documentmanager.h>
#include <document/editormanager.h>
#include <document/idocument.h>
#include <icore.h>
#include <iui.h>
#include <mainwindow.h>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QStatusBar>
#include <QUndoGroup>

#include <array>

namespace {

const QString s_stageImages = QStringLiteral(":/stage/images/");

struct ElementAction
{
    const char *pId;
    const char *pText;
    const char *pIcon;
    StageElement::Type type;
    int nWidth;
    int nHeight;
    const char *pFill;
};
constexpr std::array<ElementAction, 4> elementActions = {{
    {"Edit.Add_Rectangle", QT_TRANSLATE_NOOP("StageToolBar", "Add Re&ctangle"), "rectangle",
        StageElement::Type::Rectangle, 200, 120, "#5b8def"},
    {"Edit.Add_Ellipse", QT_TRANSLATE_NOOP("StageToolBar", "Add &Ellipse"), "ellipse",
        StageElement::Type::Ellipse, 160, 160, "#f2a65a"},
    {"Edit.Add_Text", QT_TRANSLATE_NOOP("StageToolBar", "Add &Text"), "text", StageElement::Type::Text, 240,
        40, "#202020"},
    {"Edit.Add_Image", QT_TRANSLATE_NOOP("StageToolBar", "Add &Image..."), "image", StageElement::Type::Image,
        0, 0, ""},
}};

const QString s_undo = QStringLiteral("Edit.Undo");
const QString s_redo = QStringLiteral("Edit.Redo");
const QString s_delete = QStringLiteral("Edit.Delete");
const QString s_preferences = QStringLiteral("Edit.Preferences");

ActionContainer *editMenu()
{
    return ActionManager::getActionContainer(QStringLiteral("MenuBar.Edit"));
}

// Asks for a file and sets the image's own size: 200 by 200 if it is unknown, scaled to 600 by 600 at most.
bool chooseImage(QWidget *pParent, StageElement &element)
{
    element.source = QFileDialog::getOpenFileName(pParent, StageToolBar::tr("Add Image"), QString(),
        StageToolBar::tr("Images (*.svg *.png *.jpg *.jpeg *.gif)"));
    if (element.source.isEmpty())
        return false;
    QSize size = QImageReader(element.source).size();
    if (size.isEmpty())
        size = {200, 200};
    else if (size.width() > 600 || size.height() > 600)
        size.scale(600, 600, Qt::KeepAspectRatio);
    element.width = size.width();
    element.height = size.height();
    return true;
}

} // namespace

StageToolBar::StageToolBar(MainWindow *pMainWindow)
    : QToolBar(tr("Stage"), pMainWindow)
{
    setObjectName(QStringLiteral("StageToolBar"));
    setAccessibleName(windowTitle());
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addUndoCommands();
    addElementActions();
    loadIcons();
    connect(pMainWindow, &MainWindow::dpiChanged, this, &StageToolBar::loadIcons);
    if (const EditorManager *pManager = EditorManager::getInstance()) {
        connect(pManager, &EditorManager::editorActivated, this, &StageToolBar::setEditor);
        connect(pManager, &EditorManager::editorDeactivated, this, [this] { setEditor(nullptr); });
    }
    setEditor(EditorManager::activeEditor());
}

StageToolBar::~StageToolBar()
{
    for (auto it = m_commands.cbegin(); it != m_commands.cend(); ++it)
        ActionManager::unregisterAction(it.value(), it.key());
}

// Adds the command to this bar, and to the menu "Edit" before the preferences.
void StageToolBar::addCommand(
    const QString &strId, QAction *pAction, const QString &strDescription, QKeySequence::StandardKey key)
{
    ContextAction *pCommand = ActionManager::registerAction(pAction, strId, parentWidget(), false);
    if (!pCommand)
        return;
    pCommand->setDefaultKeySequence(QKeySequence(key));
    pCommand->setDescription(strDescription);
    if (ActionContainer *pMenu = editMenu())
        pMenu->insertAction(pCommand, ActionManager::getAction(s_preferences));
    addAction(pCommand->getAction());
    m_commands.insert(strId, pAction);
}

void StageToolBar::addUndoCommands()
{
    QUndoGroup *pGroup = DocumentManager::getUndoGroup();
    if (!pGroup)
        return;
    addCommand(
        s_undo, pGroup->createUndoAction(this, tr("&Undo")), tr("Undo the last change"), QKeySequence::Undo);
    addCommand(s_redo, pGroup->createRedoAction(this, tr("&Redo")), tr("Redo the last change undone"),
        QKeySequence::Redo);
    addSeparator();
    if (ActionContainer *pMenu = editMenu())
        pMenu->insertSeparator(ActionManager::getAction(s_preferences));
}

// Delete gets no shortcut, which would take the key from text fields; StageView handles the key itself.
void StageToolBar::addElementActions()
{
    for (const ElementAction &row : elementActions) {
        auto *pAction = new QAction(tr(row.pText), this);
        connect(pAction, &QAction::triggered, this, [this, type = row.type] { addElement(type); });
        m_addActions.append(pAction);
        addCommand(QLatin1String(row.pId), pAction);
    }
    m_pDelete = new QAction(tr("&Delete"), this);
    m_pDelete->setToolTip(tr("Delete (Del)"));
    addCommand(s_delete, m_pDelete);
    if (ActionContainer *pMenu = editMenu())
        pMenu->insertSeparator(ActionManager::getAction(s_preferences));
    connect(m_pDelete, &QAction::triggered, this, [this] {
        auto *pEditor = qobject_cast<StageEditor *>(m_pEditor);
        if (pEditor && pEditor->getView())
            pEditor->getView()->deleteSelected();
    });
}

void StageToolBar::loadIcons()
{
    const auto load = [](const QString &strId, const char *pIcon) {
        if (const ContextAction *pCommand = ActionManager::getAction(strId))
            pCommand->getAction()->setIcon(IUi::getIcon(QLatin1String(pIcon), 2, s_stageImages));
    };
    load(s_undo, "undo");
    load(s_redo, "redo");
    for (const ElementAction &row : elementActions)
        load(QLatin1String(row.pId), row.pIcon);
    load(s_delete, "delete");
}

void StageToolBar::setEditor(IEditor *pEditor)
{
    if (m_pEditor)
        disconnect(m_pEditor, nullptr, this, nullptr);
    m_pEditor = pEditor;
    if (pEditor) {
        connect(pEditor, &IEditor::documentModifyChanged, this, &StageToolBar::refresh);
        connect(pEditor, &IEditor::documentLoaded, this, &StageToolBar::refresh);
    }
    if (auto *pStageEditor = qobject_cast<StageEditor *>(pEditor))
        connect(pStageEditor, &StageEditor::selectionChanged, this, &StageToolBar::refresh);
    refresh();
}

void StageToolBar::refresh()
{
    const auto *pEditor = qobject_cast<StageEditor *>(m_pEditor);
    const StageView *pView = pEditor ? pEditor->getView() : nullptr;
    for (QAction *pAction : std::as_const(m_addActions))
        pAction->setEnabled(pView);
    m_pDelete->setEnabled(pView && !pView->selectedElements().isEmpty());
}

void StageToolBar::addElement(StageElement::Type type)
{
    const ElementAction &row = elementActions.at(static_cast<std::size_t>(type));
    StageElement element;
    element.type = type;
    element.width = row.nWidth;
    element.height = row.nHeight;
    element.fill = QColor(QLatin1String(row.pFill));
    element.text = type == StageElement::Type::Text ? tr("Text") : QString();
    // While the file dialog is open, the editor may be deleted, or another one activated.
    const QPointer<StageEditor> pEditor = qobject_cast<StageEditor *>(m_pEditor);
    if (type == StageElement::Type::Image && !chooseImage(ICore::getMainWindow(), element))
        return;
    if (!pEditor || !pEditor->getView() || pEditor->getView()->addElement(element))
        return;
    if (MainWindow *pMainWindow = ICore::getMainWindow())
        pMainWindow->statusBar()->showMessage(tr("The project holds as many elements as it can."));
}
