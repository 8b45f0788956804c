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
    const bool bWasActive = pEditor == s_pInstance->m_pActiveEditor;
    if (bWasActive) {
        const QPointer<IEditor> pWatched = pEditor;
        emit pEditor->aboutToDeactivate();
        if (pWatched)
            emit s_pInstance->editorDeactivated(pEditor);
        if (s_pInstance->m_pActiveEditor == pEditor)
            s_pInstance->m_pActiveEditor = nullptr;
        if (!pWatched)
            return true;
    }
    disconnect(pEditor, &QObject::destroyed, s_pInstance, &EditorManager::editorDestroyed);
    s_pInstance->take(pEditor, bWasActive);
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
    if ((!pEditor || pNew) && pEditor != s_pInstance->m_pActiveEditor)
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
void EditorManager::take(IEditor *pEditor, bool bWasActive)
{
    const auto nIndex = m_editors.indexOf(pEditor);
    if (nIndex < 0)
        return;
    IEditor *pSuccessor = m_editors.value(nIndex + 1, m_editors.value(nIndex - 1));
    m_editors.removeAt(nIndex);
    if (bWasActive && pSuccessor && !m_pActiveEditor)
        setActive(pSuccessor);
}

// The object is no editor any more: its address is compared, and nothing is emitted through it.
void EditorManager::editorDestroyed(QObject *pObject)
{
    const auto isIt = [=](const IEditor *p) { return static_cast<const QObject *>(p) == pObject; };
    const bool bWasActive = m_pActiveEditor && isIt(m_pActiveEditor);
    if (bWasActive)
        m_pActiveEditor = nullptr;
    const auto it = std::find_if(m_editors.begin(), m_editors.end(), isIt);
    if (it == m_editors.end())
        return;
    IEditor *pEditor = *it;
    if (bWasActive)
        emit editorDeactivated(pEditor);
    take(pEditor, bWasActive);
}
