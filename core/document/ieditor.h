// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QObject>

class IDocument;

/// Presents one document in the main window. A factory makes it; once attached, the main window deletes it
/// when its document closes. It re-emits its document's signals, so that listeners connect to one object.
///
///     NotesEditor::NotesEditor()
///     {
///         connect(this, &IEditor::aboutToActivate, this, [this] {
///             if (!m_pSubWindow) // a QPointer
///                 m_pSubWindow = ICore::getMainWindow()->getMdiArea()->addSubWindow(new NotesView);
///             m_pSubWindow->show();
///         });
///     }
class CORE_EXPORT IEditor : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IEditor)

public:
    IEditor();
    ~IEditor() override;

    /// Null before setDocument() and after the document is gone. Not owned.
    [[nodiscard]] IDocument *getDocument() const { return m_pDocument; }

    /// Called once, right after creation.
    void setDocument(IDocument *pDocument);

signals:
    void aboutToActivate();
    void aboutToDeactivate();
    void documentDataChanged(QObject *pObject);
    void documentLoaded();
    void documentModifyChanged(bool bModified);
    void documentTitleChanged();
    void documentUnloading();
    void undoStackChanged();

private:
    IDocument *m_pDocument = nullptr;
};
