// SPDX-License-Identifier: MIT
#include "updatespage.h"

#include "updatesettings.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <displayscale.h>

namespace {

// A long one from its beginning.
void showAddress(QLineEdit *pEdit, const QString &strUrl)
{
    pEdit->setText(strUrl);
    pEdit->setCursorPosition(0);
}

} // namespace

UpdatesPage::UpdatesPage()
    : m_pAutomatic(new QCheckBox(tr("&Look for a new version once a day"), this))
{
    setObjectName(QStringLiteral("UpdatesPage"));
    setWindowTitle(tr("Updates"));
    auto *pLayout = new QFormLayout(this);
    pLayout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_pAutomatic->setObjectName(QStringLiteral("m_pAutomatic"));
    pLayout->addRow(m_pAutomatic);
    m_pFeed = addAddress(tr("&Address of the updates:"), "m_pFeed");
    m_pReport = addAddress(tr("Address for &problems:"), "m_pReport");
    m_pSuggestion = addAddress(tr("Address for &suggestions:"), "m_pSuggestion");
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
    showAddress(m_pFeed, UpdateSettings::feedUrl());
    showAddress(m_pReport, UpdateSettings::reportUrl());
    showAddress(m_pSuggestion, UpdateSettings::suggestionUrl());
    IOptionPage::initValues();
}

void UpdatesPage::saveChanges()
{
    UpdateSettings::setFeedUrl(m_pFeed->text());
    UpdateSettings::setReportUrl(m_pReport->text());
    UpdateSettings::setSuggestionUrl(m_pSuggestion->text());
    if (m_pAutomatic->isChecked() != UpdateSettings::isAutomatic())
        UpdateSettings::setAutomatic(m_pAutomatic->isChecked());
    IOptionPage::saveChanges();
}

void UpdatesPage::discardChanges()
{
    initValues();
    IOptionPage::discardChanges();
}
