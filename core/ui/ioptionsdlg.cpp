// SPDX-License-Identifier: MIT
#include "ui/ioptionsdlg.h"

IOptionsDlg::IOptionsDlg(QWidget *pParent)
    : QDialog(pParent)
{
}

IOptionsDlg::~IOptionsDlg() = default;
