// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QDialog>

/// Base of the dialog that asks for a new project. An IDocumentFactory makes it; the command File > New runs
/// it on the GUI thread and deletes it, unless it was accepted without a file. The integers and the flag go
/// to IDocument::createContent() as they are; the plug-in decides what they mean.
class CORE_EXPORT ICreateDocumentDlg : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ICreateDocumentDlg)

public:
    explicit ICreateDocumentDlg(QWidget *pParent);

    /// Ignores the texts; plug-ins that were written for this longer form still compile.
    ICreateDocumentDlg(QWidget *pParent, const QString &, const QString &, const QString &);
    ~ICreateDocumentDlg() override;

    /// File to create. If it is empty nothing is created, and document and dialog stay with the plug-in.
    [[nodiscard]] virtual QString getFilePath() = 0;
    [[nodiscard]] virtual int getFirstValue() = 0;
    [[nodiscard]] virtual int getSecondValue() = 0;
    [[nodiscard]] virtual int getThirdValue() = 0;
    [[nodiscard]] virtual bool getFlag() = 0;
};
