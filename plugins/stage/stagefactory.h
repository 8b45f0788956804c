// SPDX-License-Identifier: MIT
#pragma once

#include <document/idocumentfactory.h>

/// Makes the documents of the format "kelpa".
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
