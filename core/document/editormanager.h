// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QObject>

class IDocument;
class IEditor;

/// The open editors, in order of addition, and the active one. The main window makes and deletes it; without
/// it there are no editors and changes are ignored. Editors are not owned: one that is deleted leaves the
/// list by itself. GUI thread only.
class CORE_EXPORT EditorManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EditorManager)

public:
    EditorManager();
    ~EditorManager() override;

    [[nodiscard]] static EditorManager *getInstance();

    /// Null and listed editors are ignored. The editor is not activated.
    static void addEditor(IEditor *pEditor);

    /// The active editor hands over to the one after it, or, being the last, to the one before it. True for
    /// null, false for an editor that is not listed.
    static bool removeEditor(IEditor *pEditor);

    /// Null leaves no editor active; the active editor again does nothing. The editor need not be listed.
    static void activateEditor(IEditor *pEditor);
    [[nodiscard]] static IEditor *activeEditor();

    [[nodiscard]] static const QList<IEditor *> &getEditors();

    /// The first one in the list, or null.
    [[nodiscard]] static IEditor *getEditorOfDocument(const IDocument *pDocument);

signals:
    void editorActivated(IEditor *pEditor);

    /// The editor may be on its way out: after it was deleted behind the manager's back, the pointer can
    /// only be compared.
    void editorDeactivated(IEditor *pEditor);

private slots:
    void editorDestroyed(QObject *pObject);

private:
    void setActive(IEditor *pEditor);
    void take(IEditor *pEditor, bool bWasActive);

    QList<IEditor *> m_editors;
    IEditor *m_pActiveEditor = nullptr;
};
