// SPDX-License-Identifier: MIT
#include "document/documentmanager.h"

#include "document/idocument.h"

#include <QPointer>
#include <QSettings>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>

#include <limits>

namespace {

DocumentManager *s_pInstance = nullptr;

const QString s_group = QStringLiteral("Kelpa");
const QString s_backupEnable = QStringLiteral("AutoBackup.Enable");
const QString s_backupInterval = QStringLiteral("AutoBackup.Interval");
const QString s_pasteSvg = QStringLiteral("Edit.PasteSvgAsFreeform");
const QString s_breakpoints = QStringLiteral("Breakpoints");
const QString s_horizontal = QStringLiteral("Horizontal");
const QString s_vertical = QStringLiteral("Vertical");
const QString s_value = QStringLiteral("Value");
const QString s_enable = QStringLiteral("Enable");

const DocumentManager::Breakpoints s_defaultHorizontal = {
    {375, true}, {667, true}, {768, true}, {1024, true}, {1280, true}};
const DocumentManager::Breakpoints s_defaultVertical = {
    {345, false}, {522, false}, {620, false}, {674, false}, {930, false}};

void readArray(QSettings *pSettings, const QString &strArray, DocumentManager::Breakpoints &breakpoints)
{
    const int nSize = pSettings->beginReadArray(strArray);
    for (int i = 0; i < nSize; ++i) {
        pSettings->setArrayIndex(i);
        const bool bEnable = pSettings->value(s_enable).toBool();
        breakpoints.append({pSettings->value(s_value).toInt(), bEnable});
    }
    pSettings->endArray();
}

void writeArray(
    QSettings *pSettings, const QString &strArray, const DocumentManager::Breakpoints &breakpoints)
{
    pSettings->beginWriteArray(strArray, static_cast<int>(breakpoints.size()));
    for (int i = 0; i < static_cast<int>(breakpoints.size()); ++i) {
        pSettings->setArrayIndex(i);
        pSettings->setValue(s_value, breakpoints.at(i).first);
        pSettings->setValue(s_enable, breakpoints.at(i).second);
    }
    pSettings->endArray();
}

} // namespace

DocumentManager::DocumentManager()
    : m_pUndoGroup(new QUndoGroup(this))
{
    s_pInstance = this;
}

DocumentManager::~DocumentManager()
{
    s_pInstance = nullptr;
}

DocumentManager *DocumentManager::getInstance()
{
    return s_pInstance;
}

void DocumentManager::addDocument(IDocument *pDocument)
{
    if (!s_pInstance || !pDocument || s_pInstance->m_documents.contains(pDocument))
        return;
    s_pInstance->m_documents.append(pDocument);
    if (pDocument->getUndoStack())
        s_pInstance->m_pUndoGroup->addStack(pDocument->getUndoStack());

    auto *pTimer = new QTimer(s_pInstance);
    pTimer->setSingleShot(true);
    connect(pTimer, &QTimer::timeout, s_pInstance, &DocumentManager::onScheduleBackup);
    s_pInstance->m_backupTimers.emplace(pTimer, pDocument);

    // A document deleted without being removed: let go of it while its stack can still be asked for.
    connect(pDocument, &QObject::destroyed, s_pInstance, [pDocument] { removeDocument(pDocument); });
}

bool DocumentManager::removeDocument(IDocument *pDocument)
{
    if (!pDocument)
        return true;
    if (!s_pInstance || !s_pInstance->m_documents.removeOne(pDocument))
        return false;
    disconnect(pDocument, &QObject::destroyed, s_pInstance, nullptr);
    if (pDocument->getUndoStack())
        s_pInstance->m_pUndoGroup->removeStack(pDocument->getUndoStack());
    QTimer *pTimer = s_pInstance->timerOf(pDocument);
    if (!pTimer)
        return false;
    s_pInstance->m_backupTimers.erase(pTimer);
    delete pTimer;
    return true;
}

const QList<IDocument *> &DocumentManager::getDocuments()
{
    static const QList<IDocument *> s_none;
    return s_pInstance ? s_pInstance->m_documents : s_none;
}

void DocumentManager::initBreakpoints(Breakpoints &horizontal, Breakpoints &vertical, bool bReset)
{
    const Breakpoints storedHorizontal = getHBreakpoints();
    const Breakpoints storedVertical = getVBreakpoints();
    const bool bDefaults = bReset || (storedHorizontal.isEmpty() && storedVertical.isEmpty());
    horizontal = bDefaults ? s_defaultHorizontal : storedHorizontal;
    vertical = bDefaults ? s_defaultVertical : storedVertical;
}

void DocumentManager::startWaitingBackup(IDocument *pDocument)
{
    if (QTimer *pTimer = s_pInstance ? s_pInstance->timerOf(pDocument) : nullptr)
        pTimer->start(s_pInstance->backupWaitMs());
}

void DocumentManager::stopWaitingBackup(IDocument *pDocument)
{
    if (QTimer *pTimer = s_pInstance ? s_pInstance->timerOf(pDocument) : nullptr)
        pTimer->stop();
}

void DocumentManager::onScheduleBackup()
{
    const QPointer<QTimer> pTimer = qobject_cast<QTimer *>(sender());
    if (!pTimer)
        return;
    const auto it = m_backupTimers.find(pTimer);
    if (it != m_backupTimers.end())
        it->second->saveBackup();
    // The backup may have run an event loop in which the document was closed and its timer deleted.
    if (pTimer)
        pTimer->start(backupWaitMs());
}

// At least a second, so that a stored 0 does not spin, and no more than fits.
int DocumentManager::backupWaitMs() const
{
    return qBound(1, m_nAutoBackupInterval, std::numeric_limits<int>::max() / 1000) * 1000;
}

QTimer *DocumentManager::timerOf(const IDocument *pDocument) const
{
    for (const auto &[pTimer, pOwner] : m_backupTimers) {
        if (pOwner == pDocument)
            return pTimer;
    }
    return nullptr;
}

void DocumentManager::readSettings()
{
    QSettings *pSettings = s_pInstance ? s_pInstance->m_pSettings : nullptr;
    if (!pSettings)
        return;
    pSettings->beginGroup(s_group);
    if (pSettings->contains(s_backupEnable))
        s_pInstance->m_bAutoBackupEnabled = pSettings->value(s_backupEnable).toBool();
    if (pSettings->contains(s_backupInterval))
        s_pInstance->m_nAutoBackupInterval = pSettings->value(s_backupInterval).toInt();
    if (pSettings->contains(s_pasteSvg))
        s_pInstance->m_bPasteSvgAsFreeform = pSettings->value(s_pasteSvg).toBool();
    pSettings->endGroup();

    pSettings->beginGroup(s_breakpoints);
    readArray(pSettings, s_horizontal, s_pInstance->m_hBreakpoints);
    readArray(pSettings, s_vertical, s_pInstance->m_vBreakpoints);
    pSettings->endGroup();
}

void DocumentManager::saveSettings()
{
    QSettings *pSettings = s_pInstance ? s_pInstance->m_pSettings : nullptr;
    if (!pSettings)
        return;
    pSettings->beginGroup(s_group);
    pSettings->setValue(s_backupEnable, s_pInstance->m_bAutoBackupEnabled);
    pSettings->setValue(s_backupInterval, s_pInstance->m_nAutoBackupInterval);
    pSettings->setValue(s_pasteSvg, s_pInstance->m_bPasteSvgAsFreeform);
    pSettings->endGroup();

    pSettings->beginGroup(s_breakpoints);
    pSettings->remove(QString());
    writeArray(pSettings, s_horizontal, s_pInstance->m_hBreakpoints);
    writeArray(pSettings, s_vertical, s_pInstance->m_vBreakpoints);
    pSettings->endGroup();
}
