// SPDX-License-Identifier: MIT
#include "document/editormanager.h"

#include "document/ieditor.h"

#include <QPointer>

#include <algorithm>

namespace {
EditorManager *s_pInstance = nullptr;
}

EditorManager::EditorManager()
{
    s_pInstance = this;
}

EditorManager::~EditorManager()
{
    s_pInstance = nullptr;
}

EditorManager *EditorManager::getInstance()
{
    return s_pInstance;
}

void EditorManager::addEditor(IEditor *pEditor)
{
    if (!s_pInstance || !pEditor || s_pInstance->m_editors.contains(pEditor))
        return;
    s_pInstance->m_editors.append(pEditor);
    connect(pEditor, &QObject::destroyed, s_pInstance, &EditorManager::editorDestroyed, Qt::UniqueConnection);
}

bool EditorManager::removeEditor(IEditor *pEditor)
{
    if (!pEditor)
        return true;
    if (!s_pInstance || !s_pInstance->m_editors.contains(pEditor))
        return false;
    s_pInstance->deactivateAndTake(pEditor, true);
    return true;
}

void EditorManager::activateEditor(IEditor *pEditor)
{
    if (!s_pInstance || pEditor == s_pInstance->m_pActiveEditor)
        return;
    // Slots may delete either editor; one that is gone was taken out by its own destruction.
    const QPointer<IEditor> pNew = pEditor;
    if (const QPointer<IEditor> pOld = s_pInstance->m_pActiveEditor) {
        emit pOld->aboutToDeactivate();
        if (pOld)
            emit s_pInstance->editorDeactivated(pOld);
    }
    if (!pEditor || pNew)
        s_pInstance->setActive(pEditor);
}

IEditor *EditorManager::activeEditor()
{
    return s_pInstance ? s_pInstance->m_pActiveEditor : nullptr;
}

const QList<IEditor *> &EditorManager::getEditors()
{
    static const QList<IEditor *> s_none;
    return s_pInstance ? s_pInstance->m_editors : s_none;
}

IEditor *EditorManager::getEditorOfDocument(const IDocument *pDocument)
{
    const auto &editors = getEditors();
    const auto it = std::find_if(editors.begin(), editors.end(),
        [=](const IEditor *pEditor) { return pEditor->getDocument() == pDocument; });
    return it == editors.end() ? nullptr : *it;
}

void EditorManager::setActive(IEditor *pEditor)
{
    m_pActiveEditor = pEditor;
    if (!pEditor)
        return;
    // An editor may be active without being listed, and it may be deleted all the same.
    connect(pEditor, &QObject::destroyed, this, &EditorManager::editorDestroyed, Qt::UniqueConnection);
    const QPointer<IEditor> pWatched = pEditor;
    emit pEditor->aboutToActivate();
    if (pWatched)
        emit editorActivated(pEditor);
}

// What a slot did meanwhile stands: it may have taken the editor out, or activated another.
void EditorManager::deactivateAndTake(IEditor *pEditor, bool bAlive)
{
    const bool bWasActive = pEditor == m_pActiveEditor;
    if (bWasActive) {
        const QPointer<IEditor> pWatched = bAlive ? pEditor : nullptr;
        if (bAlive)
            emit pEditor->aboutToDeactivate();
        else
            m_pActiveEditor = nullptr;
        if (!bAlive || pWatched)
            emit editorDeactivated(pEditor);
        if (m_pActiveEditor == pEditor)
            m_pActiveEditor = nullptr;
        if (bAlive && !pWatched)
            return;
    }
    const auto nIndex = m_editors.indexOf(pEditor);
    if (nIndex < 0)
        return;
    IEditor *pSuccessor = m_editors.value(nIndex + 1, m_editors.value(nIndex - 1));
    m_editors.removeAt(nIndex);
    if (bAlive)
        disconnect(pEditor, &QObject::destroyed, this, &EditorManager::editorDestroyed);
    if (bWasActive && pSuccessor && !m_pActiveEditor)
        setActive(pSuccessor);
}

// The object is no editor any more: its address is compared, and nothing is emitted through it.
void EditorManager::editorDestroyed(QObject *pObject)
{
    const auto isIt = [=](const IEditor *p) { return static_cast<const QObject *>(p) == pObject; };
    const auto it = std::find_if(m_editors.begin(), m_editors.end(), isIt);
    if (it != m_editors.end())
        deactivateAndTake(*it, false);
    else if (m_pActiveEditor && isIt(m_pActiveEditor))
        m_pActiveEditor = nullptr;
}
