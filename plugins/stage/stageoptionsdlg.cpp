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
    addPages(); // before the buttons, as Tab goes
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

// While the pages are whole: an editor gives its value to its page when it dies.
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

// What the settings say now, whatever was left in the controls.
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

// A value is the control's when the focus leaves what it is typed into.
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
            break; // told once: the others would go into the same file
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

// What could not be saved stays before the author, who has been told why.
void StageOptionsDlg::onOK()
{
    onApply();
    if (!hasChanges())
        accept();
}

// Escape and the window's own close button.
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
