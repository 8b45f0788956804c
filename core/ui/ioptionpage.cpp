// SPDX-License-Identifier: MIT
#include "ui/ioptionpage.h"

IOptionPage::IOptionPage(QWidget *pParent)
    : QWidget(pParent)
{
}

IOptionPage::~IOptionPage() = default;

void IOptionPage::showEvent(QShowEvent *pEvent)
{
    if (!m_bConfigInitialized)
        initValues();
    QWidget::showEvent(pEvent);
}

IOptionPageFactory::IOptionPageFactory(QObject *pParent)
    : QObject(pParent)
{
}

IOptionPageFactory::~IOptionPageFactory() = default;
