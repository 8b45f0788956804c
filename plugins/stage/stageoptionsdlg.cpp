// SPDX-License-Identifier: MIT
#include "stageoptionsdlg.h"

#include "stageoptionpages.h"

#include <extensionsystem/pluginmanager.h>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>

using ExtensionSystem::PluginManager;

StageOptionsDlg::StageOptionsDlg(QWidget *pParent)
    : IOptionsDlg(pParent)
    , m_pList(new QListWidget(this))
    , m_pStack(new QStackedWidget(this))
{
    addPages(); // before the buttons, for the order of Tab
    m_pButtons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    setWindowTitle(tr("Preferences"));
    m_pList->setAccessibleName(tr("Pages"));
    m_pList->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    auto *pPages = new QHBoxLayout;
    pPages->addWidget(m_pList);
    pPages->addWidget(m_pStack, 1);
    auto *pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pPages);
    pLayout->addWidget(m_pButtons);

    connect(m_pList, &QListWidget::currentRowChanged, this, &StageOptionsDlg::onPageChanged);
    connect(m_pButtons, &QDialogButtonBox::accepted, this, &StageOptionsDlg::onOK);
    connect(m_pButtons, &QDialogButtonBox::rejected, this, &StageOptionsDlg::onCancel);
    connect(
        m_pButtons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &StageOptionsDlg::onApply);
    m_pList->setCurrentRow(0);
    updateButtons();
}

// An open editor of a list passes its value to its page when it is deleted, so it must end before the page.
StageOptionsDlg::~StageOptionsDlg()
{
    endTyping();
}

void StageOptionsDlg::addPages()
{
    addPage(new GeneralOptionPage);
    addPage(new BackupOptionPage);
    addPage(new EditingOptionPage);
    for (IOptionPageFactory *pFactory : PluginManager::objects<IOptionPageFactory>())
        addPage(pFactory->createPage());
}

void StageOptionsDlg::addPage(IOptionPage *pPage)
{
    if (!pPage)
        return;
    m_pages.append(pPage);
    m_pStack->addWidget(pPage);
    m_pList->addItem(pPage->windowTitle());
    connect(pPage, &IOptionPage::dataChanged, this, &StageOptionsDlg::updateButtons);
}

// Makes the pages read the settings again when they are shown, so that nothing old is left in the controls.
void StageOptionsDlg::showDialog()
{
    if (!isVisible()) {
        for (IOptionPage *pPage : std::as_const(m_pages))
            pPage->setNeedInitConfig2UI();
        updateButtons();
        m_pList->setFixedWidth(m_pList->sizeHintForColumn(0) + 4 * m_pList->fontMetrics().averageCharWidth());
    }
    open();
    raise();
    activateWindow();
}

// Controls take a typed value when they lose the focus, so the focus is moved to a button.
void StageOptionsDlg::endTyping()
{
    if (m_pStack->isAncestorOf(focusWidget()))
        m_pButtons->button(QDialogButtonBox::Ok)->setFocus();
}

void StageOptionsDlg::onApply()
{
    endTyping();
    for (IOptionPage *pPage : std::as_const(m_pages)) {
        if (pPage->isChanged())
            pPage->saveChanges();
        if (pPage->isChanged())
            break; // told only once: other pages would fail with the same file
    }
    updateButtons();
}

void StageOptionsDlg::onCancel()
{
    endTyping();
    for (IOptionPage *pPage : std::as_const(m_pages)) {
        if (pPage->isChanged())
            pPage->discardChanges();
    }
    updateButtons();
    IOptionsDlg::reject();
}

// If a page could not be saved, the dialog stays open; the page has told the user why.
void StageOptionsDlg::onOK()
{
    onApply();
    if (!hasChanges())
        accept();
}

// Escape and the window's close button come here; both count as Cancel.
void StageOptionsDlg::reject()
{
    onCancel();
}

void StageOptionsDlg::onPageChanged(int nPage)
{
    m_pStack->setCurrentIndex(nPage);
}

int StageOptionsDlg::currentPage()
{
    return m_pStack->currentIndex();
}

void StageOptionsDlg::setCurrentPage(int nPage)
{
    m_pList->setCurrentRow(nPage);
}

bool StageOptionsDlg::hasChanges()
{
    return std::any_of(
        m_pages.cbegin(), m_pages.cend(), [](IOptionPage *pPage) { return pPage->isChanged(); });
}

void StageOptionsDlg::updateButtons()
{
    m_pButtons->button(QDialogButtonBox::Apply)->setEnabled(hasChanges());
}
