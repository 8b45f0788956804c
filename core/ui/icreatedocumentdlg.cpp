// SPDX-License-Identifier: MIT
#include "ui/icreatedocumentdlg.h"

ICreateDocumentDlg::ICreateDocumentDlg(QWidget *pParent)
    : QDialog(pParent, Qt::Dialog)
{
}

ICreateDocumentDlg::ICreateDocumentDlg(QWidget *pParent, const QString &, const QString &, const QString &)
    : ICreateDocumentDlg(pParent)
{
}

ICreateDocumentDlg::~ICreateDocumentDlg() = default;
