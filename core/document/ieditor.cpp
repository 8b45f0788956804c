// SPDX-License-Identifier: MIT
#include "document/ieditor.h"

#include "document/idocument.h"

IEditor::IEditor() = default;

IEditor::~IEditor() = default;

void IEditor::setDocument(IDocument *pDocument)
{
    m_pDocument = pDocument;
    if (!pDocument)
        return;
    connect(pDocument, &IDocument::aboutToOpen, this, &IEditor::documentLoaded);
    connect(pDocument, &IDocument::dataChanged, this, &IEditor::documentDataChanged);
    connect(pDocument, &IDocument::aboutToClose, this, &IEditor::documentUnloading);
    connect(pDocument, &IDocument::titleChanged, this, &IEditor::documentTitleChanged);
    connect(pDocument, &IDocument::modifyChanged, this, &IEditor::documentModifyChanged);
    connect(pDocument, &IDocument::undoStackChanged, this, &IEditor::undoStackChanged);
    connect(pDocument, &QObject::destroyed, this, [this, pDocument] {
        if (m_pDocument == pDocument)
            m_pDocument = nullptr;
    });
}
