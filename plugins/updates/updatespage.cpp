// SPDX-License-Identifier: MIT
#include "updatespage.h"

#include "updatesettings.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <displayscale.h>

UpdatesPage::UpdatesPage()
    : m_pAutomatic(new QCheckBox(tr("&Look for a new version once a day"), this))
{
    setObjectName(QStringLiteral("UpdatesPage"));
    setWindowTitle(tr("Updates"));
    auto *pLayout = new QFormLayout(this);
    pLayout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_pAutomatic->setObjectName(QStringLiteral("m_pAutomatic"));
    pLayout->addRow(m_pAutomatic);
    m_addresses = {addAddress(tr("&Address of the updates:"), "m_pFeed"),
        addAddress(tr("Address for &problems:"), "m_pReport"),
        addAddress(tr("Address for &suggestions:"), "m_pSuggestion")};
    connect(m_pAutomatic, &QCheckBox::clicked, this, &UpdatesPage::onEdited);
}

QLineEdit *UpdatesPage::addAddress(const QString &strLabel, const char *pName)
{
    auto *pEdit = new QLineEdit(this);
    pEdit->setObjectName(QLatin1String(pName));
    pEdit->setAccessibleName(QString(strLabel).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    pEdit->setMinimumWidth(DisplayScale::proportional(DisplayScale::logicalDpi(this), 320));
    static_cast<QFormLayout *>(layout())->addRow(strLabel, pEdit);
    connect(pEdit, &QLineEdit::textEdited, this, &UpdatesPage::onEdited);
    return pEdit;
}

void UpdatesPage::onEdited()
{
    setChanged(true);
    emit dataChanged();
}

void UpdatesPage::initValues()
{
    m_pAutomatic->setChecked(UpdateSettings::isAutomatic());
    for (const auto address : {UpdateSettings::Feed, UpdateSettings::Report, UpdateSettings::Suggestion}) {
        m_addresses[address]->setText(UpdateSettings::url(address));
        m_addresses[address]->setCursorPosition(0); // shows the beginning of a long address
    }
    IOptionPage::initValues();
}

void UpdatesPage::saveChanges()
{
    for (const auto address : {UpdateSettings::Feed, UpdateSettings::Report, UpdateSettings::Suggestion})
        UpdateSettings::setUrl(address, m_addresses[address]->text());
    if (m_pAutomatic->isChecked() != UpdateSettings::isAutomatic())
        UpdateSettings::setAutomatic(m_pAutomatic->isChecked());
    IOptionPage::saveChanges();
}

void UpdatesPage::discardChanges()
{
    initValues();
    IOptionPage::discardChanges();
}
