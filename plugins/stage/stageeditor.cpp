// SPDX-License-Identifier: MIT
#include "stageeditor.h"

#include "stagedocument.h"
#include "stagemodel.h"
#include "stagesubwindow.h"
#include "stageview.h"

#include <displayscale.h>
#include <document/documentmanager.h>
#include <document/editormanager.h>
#include <icore.h>
#include <mainwindow.h>
#include <ui/imainmdiarea.h>

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QStatusBar>
#include <QTabBar>
#include <QUndoGroup>
#include <QVBoxLayout>

namespace {

// In a tab "&" marks a key and "[*]" is the place of the mark for changes, so both are escaped in the name.
// The name is shortened because a tab is as wide as its text.
QString tabText(const QString &strName, const QWidget *pTab)
{
    const int nWidest = DisplayScale::proportional(DisplayScale::logicalDpi(pTab), 240);
    QString strText = pTab->fontMetrics().elidedText(strName, Qt::ElideMiddle, nWidest);
    strText.replace(QLatin1Char('&'), QStringLiteral("&&"));
    strText.replace(QStringLiteral("[*]"), QStringLiteral("[\u2060*]"));
    return strText + QStringLiteral("[*]");
}

} // namespace

StageEditor::StageEditor()
{
    connect(this, &IEditor::aboutToActivate, this, &StageEditor::show);
    connect(this, &IEditor::documentTitleChanged, this, &StageEditor::updateTitle);
    connect(this, &IEditor::documentModifyChanged, this, &StageEditor::updateTitle);
}

// The main window clears its title when a document closes; an editor deleted after that sets it again.
StageEditor::~StageEditor()
{
    delete m_pSubWindow;
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (pMainWindow && pMainWindow->getMdiArea())
        pMainWindow->updateActivatedMdiSubFilePath(pMainWindow->getMdiArea()->activeSubWindow());
}

StageView *StageEditor::getView() const
{
    return m_pView;
}

QMdiSubWindow *StageEditor::getSubWindow() const
{
    return m_pSubWindow;
}

StageDocument *StageEditor::document() const
{
    return qobject_cast<StageDocument *>(getDocument());
}

void StageEditor::show()
{
    StageDocument *pDocument = document();
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (!pDocument || !pMainWindow)
        return;
    if (!m_pSubWindow)
        createSubWindow(pDocument);
    pMainWindow->getMdiArea()->setActiveSubWindow(m_pSubWindow);
    if (m_pView)
        m_pView->setFocus();
    if (QUndoGroup *pGroup = DocumentManager::getUndoGroup())
        pGroup->setActiveStack(pDocument->getUndoStack());
}

void StageEditor::createSubWindow(StageDocument *pDocument)
{
    IMainMdiArea *pArea = ICore::getMainWindow()->getMdiArea();
    auto *pSubWindow = new StageSubWindow;
    m_pSubWindow = pSubWindow;
    pSubWindow->setWidget(createContent(pDocument));
    connect(pSubWindow, &StageSubWindow::closeRequested, this, &StageEditor::requestClose);
    connect(pDocument, &IDocument::statusChanged, this, &StageEditor::showStatus);
    pArea->addSubWindow(pSubWindow);
    updateTitle();
    connect(pArea, &QMdiArea::subWindowActivated, this, &StageEditor::onSubWindowActivated);
    pSubWindow->showMaximized();
}

QWidget *StageEditor::createContent(StageDocument *pDocument)
{
    auto *pContent = new QWidget;
    auto *pLabel = new QLabel(tr("Sce&ne:"), pContent);
    m_pScenes = new QComboBox(pContent);
    m_pScenes->setAccessibleName(tr("Scene"));
    pLabel->setBuddy(m_pScenes);
    m_pView = new StageView(pDocument, pDocument->getModel(), pContent);
    fillScenes();
    connect(m_pScenes, &QComboBox::activated, m_pView, &StageView::setCurrentScene);
    connect(m_pView, &StageView::elementSelectionChanged, this, &StageEditor::selectionChanged);
    connect(m_pView, &StageView::elementSelectionChanged, this, [this] {
        if (m_pScenes && m_pView)
            m_pScenes->setCurrentIndex(m_pView->currentScene());
    });
    connect(pDocument->getModel(), &StageModel::reset, this, &StageEditor::fillScenes);

    auto *pBar = new QHBoxLayout;
    const int nSpace = DisplayScale::proportional(DisplayScale::logicalDpi(pContent), 6);
    pBar->setContentsMargins(nSpace, nSpace / 2, nSpace, nSpace / 2);
    pBar->setSpacing(nSpace);
    pBar->addWidget(pLabel);
    pBar->addWidget(m_pScenes);
    pBar->addStretch();
    auto *pLayout = new QVBoxLayout(pContent);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addLayout(pBar);
    pLayout->addWidget(m_pView);
    return pContent;
}

void StageEditor::fillScenes()
{
    const StageDocument *pDocument = document();
    if (!pDocument || !m_pScenes || !m_pView)
        return;
    m_pScenes->clear();
    for (const StageScene &scene : pDocument->getModel()->project().scenes)
        m_pScenes->addItem(scene.name);
    m_pScenes->setCurrentIndex(m_pView->currentScene());
}

void StageEditor::updateTitle()
{
    const IDocument *pDocument = getDocument();
    if (!pDocument || !m_pSubWindow)
        return;
    const QString strFileName = pDocument->getFileName();
    m_pSubWindow->setWindowTitle(tabText(QFileInfo(strFileName).completeBaseName(), m_pSubWindow));
    m_pSubWindow->setWindowFilePath(strFileName);
    // A tool tip of the sub-window would appear over the whole stage, so the tab alone gets one.
    QMdiArea *pArea = m_pSubWindow->mdiArea();
    if (auto *pTabs = pArea ? pArea->findChild<QTabBar *>() : nullptr)
        pTabs->setTabToolTip(static_cast<int>(pArea->subWindowList().indexOf(m_pSubWindow)),
            QDir::toNativeSeparators(strFileName));
    m_pSubWindow->setWindowModified(pDocument->isModified());
    if (EditorManager::activeEditor() == this && ICore::getMainWindow())
        ICore::getMainWindow()->updateActivatedMdiSubFilePath(m_pSubWindow);
}

// Activates the editor when the user picks its tab, but not while it closes or after its document is gone.
void StageEditor::onSubWindowActivated(QMdiSubWindow *pSubWindow)
{
    if (pSubWindow && pSubWindow == m_pSubWindow && getDocument() && !m_bClosing)
        EditorManager::activateEditor(this);
}

void StageEditor::showStatus(const QString &strStatus)
{
    if (MainWindow *pMainWindow = ICore::getMainWindow())
        pMainWindow->statusBar()->showMessage(strStatus);
}

// The question about unsaved changes runs an event loop: until the answer, close may be requested again, and
// document or editor may be deleted. The signal in the last line deletes the document, so nothing may follow.
void StageEditor::requestClose()
{
    const QPointer<IDocument> pDocument = getDocument();
    if (m_bClosing || !pDocument)
        return;
    m_bClosing = true;
    const QPointer<StageEditor> pThis = this;
    const bool bMayGo = pDocument->close();
    if (!pThis || !pDocument)
        return;
    m_bClosing = bMayGo;
    if (bMayGo)
        emit pDocument->requestClosing(true);
}
