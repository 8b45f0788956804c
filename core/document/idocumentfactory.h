// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QObject>
#include <QStringList>

class ICreateDocumentDlg;
class IDocument;
class IEditor;
class IOptionsDlg;

/// Makes the documents of one format and what goes with them. A plug-in owns it and keeps it in the
/// framework's object pool, where the main window finds it. What it creates belongs to the caller.
///
///     IDocument *NotesFactory::createDocument() { return new NotesDocument; }
///     IEditor *NotesFactory::createEditor() { return new NotesEditor; }
///     QStringList NotesFactory::getSupportedSuffixes() { return {QStringLiteral("notes")}; }
///     // ... and the three dialogs. In initialize() of the plug-in:
///     PluginManager::addObject(&m_factory);
class CORE_EXPORT IDocumentFactory : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IDocumentFactory)

public:
    explicit IDocumentFactory(QObject *pParent);
    ~IDocumentFactory() override;

    [[nodiscard]] virtual IDocument *createDocument() = 0;
    [[nodiscard]] virtual IEditor *createEditor() = 0;

    /// Lower case, without the dot.
    [[nodiscard]] virtual QStringList getSupportedSuffixes() = 0;

    [[nodiscard]] virtual IOptionsDlg *createOptionsDialog() = 0;
    [[nodiscard]] virtual ICreateDocumentDlg *createNewDocumentDialog() = 0;

    /// Runs the open-file dialog; empty when cancelled.
    [[nodiscard]] virtual QString getOpenFileName() = 0;
};
