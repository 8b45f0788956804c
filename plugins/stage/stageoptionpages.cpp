// SPDX-License-Identifier: MIT
#include "stageoptionpages.h"

#include <appearance/ilanguagemanager.h>
#include <document/documentmanager.h>
#include <extensionsystem/pluginmanager.h>
#include <icore.h>
#include <iui.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QStyledItemDelegate>

using ExtensionSystem::PluginManager;

namespace {

constexpr int s_minIntervalSeconds = 10;
constexpr int s_maxIntervalSeconds = 24 * 60 * 60;
constexpr int s_maxBreakpoint = 100000; // pixels; more than any stage has

// Accepts only valid positions of breakpoints in the lists.
class PositionDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(
        QWidget *pParent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QWidget *pEditor = QStyledItemDelegate::createEditor(pParent, option, index);
        if (auto *pSpin = qobject_cast<QSpinBox *>(pEditor)) {
            pSpin->setRange(1, s_maxBreakpoint);
            pSpin->setButtonSymbols(QAbstractSpinBox::NoButtons); // they do not fit into a row's height
        }
        return pEditor;
    }

    void updateEditorGeometry(
        QWidget *pEditor, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::updateEditorGeometry(pEditor, option, index);
        pEditor->resize(pEditor->width(), option.rect.height());
        pEditor->move(pEditor->x(), option.rect.y());
    }
};

void addBreakpoint(QListWidget *pList, int nValue, bool bEnabled)
{
    auto *pItem = new QListWidgetItem(pList);
    pItem->setFlags(pItem->flags() | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    pItem->setData(Qt::EditRole, nValue);
    pItem->setCheckState(bEnabled ? Qt::Checked : Qt::Unchecked);
}

DocumentManager::Breakpoints breakpointsOf(const QListWidget *pList)
{
    DocumentManager::Breakpoints breakpoints;
    for (int i = 0; i < pList->count(); ++i) {
        const QListWidgetItem *pItem = pList->item(i);
        breakpoints.append({pItem->data(Qt::EditRole).toInt(), pItem->checkState() == Qt::Checked});
    }
    return breakpoints;
}

// The built-in lists are only for a store without breakpoints; a stored empty list was emptied by the user.
std::pair<DocumentManager::Breakpoints, DocumentManager::Breakpoints> storedBreakpoints()
{
    const QSettings *pSettings = ICore::settings(QSettings::UserScope);
    std::pair lists(DocumentManager::getHBreakpoints(), DocumentManager::getVBreakpoints());
    if (!pSettings || !pSettings->childGroups().contains(QStringLiteral("Breakpoints")))
        DocumentManager::initBreakpoints(lists.first, lists.second, false);
    return lists;
}

void tellUnsaved(QWidget *pParent, const QString &strText)
{
    const QSettings *pSettings = PluginManager::settings();
    IUi::information(pParent, IUi::getTitle(), strText, QMessageBox::Ok, QMessageBox::Ok,
        pSettings ? QDir::toNativeSeparators(pSettings->fileName()) : QString());
}

void saveSettings(const std::pair<DocumentManager::Breakpoints, DocumentManager::Breakpoints> &breakpoints)
{
    DocumentManager::setHBreakpoints(breakpoints.first);
    DocumentManager::setVBreakpoints(breakpoints.second);
    DocumentManager::saveSettings();
}

} // namespace

StageOptionPage::StageOptionPage(const QString &strTitle)
{
    setWindowTitle(strTitle);
    setAccessibleName(strTitle);
}

void StageOptionPage::initValues()
{
    m_bFilling = true;
    fill();
    m_bFilling = false;
    IOptionPage::initValues();
}

void StageOptionPage::discardChanges()
{
    initValues();
    IOptionPage::discardChanges();
}

// If the settings cannot be written, the page stays marked as changed.
void StageOptionPage::saveChanges()
{
    if (PluginManager::storeSettings(PluginManager::settings()))
        IOptionPage::saveChanges();
    else
        tellUnsaved(this, tr("The settings could not be saved."));
}

void StageOptionPage::markChanged()
{
    if (m_bFilling)
        return;
    setChanged(true);
    emit dataChanged();
}

GeneralOptionPage::GeneralOptionPage()
    : StageOptionPage(tr("General"))
    , m_pLanguage(new QComboBox(this))
{
    auto *pLayout = new QFormLayout(this);
    pLayout->addRow(tr("&Language:"), m_pLanguage);
    m_pLanguage->setObjectName(QStringLiteral("language"));
    m_pLanguage->setAccessibleName(tr("Language"));
    auto *pNote = new QLabel(tr("Another language takes effect at the next start."), this);
    pNote->setWordWrap(true);
    pLayout->addRow(pNote);
    const auto languages = ILanguageManager::getInstance().getLanguages();
    for (const LanguageInfo *pInfo : languages)
        m_pLanguage->addItem(pInfo->title(), pInfo->id);
    connect(m_pLanguage, &QComboBox::currentIndexChanged, this, &GeneralOptionPage::markChanged);
}

void GeneralOptionPage::fill()
{
    const QString strSaved = ILanguageManager::getInstance().getSaveLangId();
    const int nIndex = m_pLanguage->findData(strSaved);
    // The index is -1, which selects nothing, if the stored language is no longer installed.
    m_pLanguage->setCurrentIndex(strSaved.isEmpty() ? 0 : nIndex);
}

void GeneralOptionPage::saveChanges()
{
    if (ILanguageManager::getInstance().saveLanguage(m_pLanguage->currentData().toString()))
        StageOptionPage::saveChanges();
    else
        tellUnsaved(this, tr("Failed to change language."));
}

BackupOptionPage::BackupOptionPage()
    : StageOptionPage(tr("Backup"))
    , m_pEnable(new QCheckBox(tr("&Back up open projects automatically"), this))
    , m_pInterval(new QSpinBox(this))
{
    m_pEnable->setObjectName(QStringLiteral("backupEnable"));
    m_pInterval->setObjectName(QStringLiteral("backupInterval"));
    m_pInterval->setRange(s_minIntervalSeconds, s_maxIntervalSeconds);
    m_pInterval->setSuffix(tr(" s", "seconds"));
    m_pInterval->setAccessibleName(tr("Seconds between two backups"));
    auto *pLayout = new QFormLayout(this);
    pLayout->addRow(m_pEnable);
    pLayout->addRow(tr("&Interval:"), m_pInterval);
    connect(m_pEnable, &QCheckBox::toggled, m_pInterval, &QSpinBox::setEnabled);
    connect(m_pEnable, &QCheckBox::toggled, this, &BackupOptionPage::markChanged);
    connect(m_pInterval, &QSpinBox::valueChanged, this, [this] {
        m_bIntervalChanged = true;
        markChanged();
    });
}

void BackupOptionPage::fill()
{
    m_pEnable->setChecked(DocumentManager::isAutobackupEnabled());
    m_pInterval->setEnabled(m_pEnable->isChecked());
    m_pInterval->setValue(DocumentManager::getAutobackupTimeout());
    m_bIntervalChanged = false;
}

void BackupOptionPage::saveChanges()
{
    DocumentManager::setAutoBackupEnabled(m_pEnable->isChecked());
    if (m_bIntervalChanged) // a stored value beyond the spin box's range is kept
        DocumentManager::setAutobackupTimeout(m_pInterval->value());
    saveSettings(storedBreakpoints()); // saveSettings() writes the breakpoints too, so they must be right
    const auto apply =
        m_pEnable->isChecked() ? DocumentManager::startWaitingBackup : DocumentManager::stopWaitingBackup;
    for (IDocument *pDocument : DocumentManager::getDocuments())
        apply(pDocument);
    StageOptionPage::saveChanges();
}

EditingOptionPage::EditingOptionPage()
    : StageOptionPage(tr("Editing"))
    , m_pPasteSvg(new QCheckBox(tr("&Paste SVG as freeform shapes"), this))
{
    m_pPasteSvg->setObjectName(QStringLiteral("pasteSvg"));
    auto *pLists = new QHBoxLayout;
    m_pHorizontal = createList(pLists, tr("Horizontal breakpoints"), QStringLiteral("horizontal"));
    m_pVertical = createList(pLists, tr("Vertical breakpoints"), QStringLiteral("vertical"));
    auto *pReset = new QPushButton(tr("Restore &Defaults"), this);
    pReset->setAccessibleName(tr("Restore the default breakpoints"));
    pReset->setAutoDefault(false);
    auto *pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pPasteSvg);
    pLayout->addLayout(pLists);
    pLayout->addWidget(pReset, 0, Qt::AlignLeft);
    connect(m_pPasteSvg, &QCheckBox::toggled, this, &EditingOptionPage::markChanged);
    connect(pReset, &QPushButton::clicked, this, [this] { fillBreakpoints(true); });
}

QListWidget *EditingOptionPage::createList(QLayout *pPlace, const QString &strTitle, const QString &strName)
{
    auto *pBox = new QGroupBox(strTitle, this);
    pPlace->addWidget(pBox);
    auto *pList = new QListWidget(pBox);
    pList->setObjectName(strName);
    pList->setAccessibleName(tr("%1, in pixels").arg(strTitle));
    pList->setItemDelegate(new PositionDelegate(pList));
    auto *pAdd = new QPushButton(tr("Add"), pBox);
    auto *pRemove = new QPushButton(tr("Remove"), pBox);
    auto *pLayout = new QGridLayout(pBox);
    pLayout->addWidget(pList, 0, 0, 1, 2);
    pLayout->addWidget(pAdd, 1, 0);
    pLayout->addWidget(pRemove, 1, 1);
    for (QPushButton *pButton : {pAdd, pRemove}) {
        pButton->setAutoDefault(false);
        pButton->setAccessibleName(QStringLiteral("%1: %2").arg(strTitle, pButton->text()));
    }
    connect(pAdd, &QPushButton::clicked, this, [pList] {
        addBreakpoint(pList, 800, true);
        pList->setCurrentRow(pList->count() - 1);
        pList->editItem(pList->currentItem());
    });
    connect(pRemove, &QPushButton::clicked, this, [pList] { delete pList->currentItem(); });
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(pList->model(), signal, this, &EditingOptionPage::markChanged);
    connect(pList, &QListWidget::itemChanged, this, &EditingOptionPage::markChanged);
    return pList;
}

void EditingOptionPage::fill()
{
    m_pPasteSvg->setChecked(DocumentManager::isPasteSvgAsFreeform());
    fillBreakpoints(false);
}

void EditingOptionPage::fillBreakpoints(bool bReset)
{
    auto [horizontal, vertical] = storedBreakpoints();
    if (bReset)
        DocumentManager::initBreakpoints(horizontal, vertical, true);
    m_pHorizontal->clear();
    for (const auto &[nValue, bEnabled] : std::as_const(horizontal))
        addBreakpoint(m_pHorizontal, nValue, bEnabled);
    m_pVertical->clear();
    for (const auto &[nValue, bEnabled] : std::as_const(vertical))
        addBreakpoint(m_pVertical, nValue, bEnabled);
}

void EditingOptionPage::saveChanges()
{
    DocumentManager::setPasteSvgAsFreeform(m_pPasteSvg->isChecked());
    saveSettings({breakpointsOf(m_pHorizontal), breakpointsOf(m_pVertical)});
    StageOptionPage::saveChanges();
}
