// SPDX-License-Identifier: MIT
#include "ui/ioptionpage.h"

IOptionPage::IOptionPage(QWidget *pParent)
    : QWidget(pParent)
{
}

IOptionPage::~IOptionPage() = default;

bool IOptionPage::isChanged()
{
    return m_bChanged;
}

void IOptionPage::setChanged(bool)
{
    m_bChanged = true;
}

void IOptionPage::initValues()
{
    m_bConfigInitialized = true;
}

void IOptionPage::saveChanges()
{
    m_bChanged = false;
}

void IOptionPage::discardChanges()
{
    m_bChanged = false;
}

void IOptionPage::setNeedInitConfig2UI()
{
    m_bConfigInitialized = false;
}

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
