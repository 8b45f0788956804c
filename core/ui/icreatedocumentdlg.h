// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QDialog>

/// Base of the dialog that asks for a new project. A factory makes it; the new-project command runs it, reads
/// it after it was accepted and deletes it. What the three integers and the flag mean is between the dialog
/// and its document.
class CORE_EXPORT ICreateDocumentDlg : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ICreateDocumentDlg)

public:
    explicit ICreateDocumentDlg(QWidget *pParent);

    /// The same dialog; plug-ins written for the longer form still compile, and the texts are not used.
    ICreateDocumentDlg(QWidget *pParent, const QString &, const QString &, const QString &);
    ~ICreateDocumentDlg() override;

    /// File to create; empty creates nothing.
    [[nodiscard]] virtual QString getFilePath() = 0;
    [[nodiscard]] virtual int getFirstValue() = 0;
    [[nodiscard]] virtual int getSecondValue() = 0;
    [[nodiscard]] virtual int getThirdValue() = 0;
    [[nodiscard]] virtual bool getFlag() = 0;
};
