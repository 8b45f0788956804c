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
    const char *pText;
    const char *pIcon;
    StageElement::Type type;
    int nWidth;
    int nHeight;
    const char *pFill;
};
constexpr std::array<ElementAction, 4> elementActions = {{
    {QT_TRANSLATE_NOOP("StageToolBar", "Add &Rectangle"), "rectangle", StageElement::Type::Rectangle, 200,
        120, "#5b8def"},
    {QT_TRANSLATE_NOOP("StageToolBar", "Add &Ellipse"), "ellipse", StageElement::Type::Ellipse, 160, 160,
        "#f2a65a"},
    {QT_TRANSLATE_NOOP("StageToolBar", "Add &Text"), "text", StageElement::Type::Text, 240, 40, "#202020"},
    {QT_TRANSLATE_NOOP("StageToolBar", "Add &Image..."), "image", StageElement::Type::Image, 0, 0, ""},
}};

const QString s_undo = QStringLiteral("Edit.Undo");
const QString s_redo = QStringLiteral("Edit.Redo");

QAction *registerUndo(QAction *pAction, const QString &strId, QKeySequence::StandardKey key,
    const QString &strDescription, MainWindow *pMainWindow)
{
    ContextAction *pCommand = ActionManager::registerAction(pAction, strId, pMainWindow, false);
    pCommand->setDefaultKeySequence(QKeySequence(key));
    pCommand->setDescription(strDescription);
    if (ActionContainer *pMenu = ActionManager::getActionContainer(QStringLiteral("MenuBar.Edit")))
        pMenu->insertAction(pCommand, ActionManager::getAction(QStringLiteral("Edit.Preferences")));
    return pCommand->getAction();
}

// Asks for a file and takes the image's own size, or one that fits when that is unknown or large.
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
    addUndoCommands(pMainWindow);
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
    ActionManager::unregisterAction(m_pUndo, s_undo);
    ActionManager::unregisterAction(m_pRedo, s_redo);
}

void StageToolBar::addUndoCommands(MainWindow *pMainWindow)
{
    QUndoGroup *pGroup = DocumentManager::getUndoGroup();
    if (!pGroup)
        return;
    m_pUndo = pGroup->createUndoAction(this, tr("&Undo"));
    m_pRedo = pGroup->createRedoAction(this, tr("&Redo"));
    addAction(registerUndo(m_pUndo, s_undo, QKeySequence::Undo, tr("Undo the last change"), pMainWindow));
    addAction(
        registerUndo(m_pRedo, s_redo, QKeySequence::Redo, tr("Redo the last change undone"), pMainWindow));
    addSeparator();
    if (ActionContainer *pMenu = ActionManager::getActionContainer(QStringLiteral("MenuBar.Edit")))
        pMenu->insertSeparator(ActionManager::getAction(QStringLiteral("Edit.Preferences")));
}

// The view itself takes the Delete key, so that it still deletes letters elsewhere.
void StageToolBar::addElementActions()
{
    for (const ElementAction &row : elementActions) {
        QAction *pAction = addAction(tr(row.pText));
        connect(pAction, &QAction::triggered, this, [this, type = row.type] { addElement(type); });
        m_addActions.append(pAction);
    }
    m_pDelete = addAction(tr("&Delete"));
    m_pDelete->setToolTip(tr("Delete (Del)"));
    connect(m_pDelete, &QAction::triggered, this, [this] {
        auto *pEditor = qobject_cast<StageEditor *>(m_pEditor);
        if (pEditor && pEditor->getView())
            pEditor->getView()->deleteSelected();
    });
}

void StageToolBar::loadIcons()
{
    const auto load = [](QAction *pAction, const char *pIcon) {
        pAction->setIcon(IUi::getIcon(QLatin1String(pIcon), 2, s_stageImages));
    };
    for (const auto &[strId, pIcon] : {std::pair {s_undo, "undo"}, std::pair {s_redo, "redo"}}) {
        if (const ContextAction *pCommand = ActionManager::getAction(strId))
            load(pCommand->getAction(), pIcon);
    }
    for (int i = 0; i < static_cast<int>(elementActions.size()); ++i)
        load(m_addActions.at(i), elementActions.at(static_cast<std::size_t>(i)).pIcon);
    load(m_pDelete, "delete");
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
    if (type == StageElement::Type::Image && !chooseImage(ICore::getMainWindow(), element))
        return;
    // The dialog ran an event loop in which the editor may have gone.
    const auto *pEditor = qobject_cast<StageEditor *>(m_pEditor);
    if (!pEditor || !pEditor->getView() || pEditor->getView()->addElement(element))
        return;
    if (MainWindow *pMainWindow = ICore::getMainWindow())
        pMainWindow->statusBar()->showMessage(tr("The project holds as many elements as it can."));
}
