// SPDX-License-Identifier: MIT
#pragma once

#include <document/idocumentfactory.h>

/// Creates the documents of the format "kelpa" with their editors and dialogs. StagePlugin owns it.
class StageFactory : public IDocumentFactory
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageFactory)

public:
    using IDocumentFactory::IDocumentFactory;

    [[nodiscard]] IDocument *createDocument() override;
    [[nodiscard]] IEditor *createEditor() override;
    [[nodiscard]] QStringList getSupportedSuffixes() override;
    [[nodiscard]] IOptionsDlg *createOptionsDialog() override;
    [[nodiscard]] ICreateDocumentDlg *createNewDocumentDialog() override;
    [[nodiscard]] QString getOpenFileName() override;
};
