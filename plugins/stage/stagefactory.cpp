// SPDX-License-Identifier: MIT
#include "stagefactory.h"

#include "stagedocument.h"
#include "stageeditor.h"
#include "stagenewdialog.h"
#include "stageoptionsdlg.h"

#include <icore.h>
#include <mainwindow.h>

#include <QFileDialog>

IDocument *StageFactory::createDocument()
{
    return new StageDocument;
}

IEditor *StageFactory::createEditor()
{
    return new StageEditor;
}

QStringList StageFactory::getSupportedSuffixes()
{
    return {QStringLiteral("kelpa")};
}

IOptionsDlg *StageFactory::createOptionsDialog()
{
    return new StageOptionsDlg(ICore::getMainWindow());
}

ICreateDocumentDlg *StageFactory::createNewDocumentDialog()
{
    return new StageNewDialog(ICore::getMainWindow());
}

QString StageFactory::getOpenFileName()
{
    return QFileDialog::getOpenFileName(
        ICore::getMainWindow(), tr("Open Project"), QString(), tr("Kelpa projects (*.kelpa)"));
}
