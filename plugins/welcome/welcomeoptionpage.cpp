// SPDX-License-Identifier: MIT
#include "welcomeoptionpage.h"

#include <icore.h>

#include <extensionsystem/pluginmanager.h>

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

using ExtensionSystem::PluginManager;

namespace {
const QString s_key = QStringLiteral("Welcome/ShowPage");
}

WelcomeOptionPage::WelcomeOptionPage()
    : m_pShow(new QCheckBox(tr("&Show the home page while no project is open"), this))
{
    setWindowTitle(tr("Home Page"));
    setAccessibleName(windowTitle());
    m_pShow->setObjectName(QStringLiteral("showPage"));
    auto *pNote = new QLabel(tr("A change takes effect at the next start."), this);
    pNote->setWordWrap(true);
    auto *pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pShow);
    pLayout->addWidget(pNote);
    pLayout->addStretch();
    connect(m_pShow, &QCheckBox::clicked, this, [this] {
        setChanged(true);
        emit dataChanged();
    });
}

bool WelcomeOptionPage::isPageWanted()
{
    const QSettings *pSettings = ICore::settings(QSettings::UserScope);
    return !pSettings || pSettings->value(s_key, true).toBool();
}

void WelcomeOptionPage::initValues()
{
    m_pShow->setChecked(isPageWanted());
    IOptionPage::initValues();
}

void WelcomeOptionPage::saveChanges()
{
    ICore::settings(QSettings::UserScope)->setValue(s_key, m_pShow->isChecked());
    IOptionPage::saveChanges();
}

void WelcomeOptionPage::discardChanges()
{
    initValues();
    IOptionPage::discardChanges();
}

WelcomeOptionPageFactory::WelcomeOptionPageFactory()
    : IOptionPageFactory(nullptr)
{
    PluginManager::addObject(this);
}

WelcomeOptionPageFactory::~WelcomeOptionPageFactory()
{
    PluginManager::removeObject(this);
}

IOptionPage *WelcomeOptionPageFactory::createPage()
{
    return new WelcomeOptionPage;
}
