// SPDX-License-Identifier: MIT
#include "thememenu.h"

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <appearance/ithemesmanager.h>
#include <icore.h>
#include <iui.h>
#include <mainwindow.h>

#include <QMenu>

namespace {

// The themes that come with the program have translated names; any other is called like its file.
constexpr const char *s_names[] = {
    QT_TRANSLATE_NOOP("ThemeMenu", "Dark"),
    QT_TRANSLATE_NOOP("ThemeMenu", "Light"),
};

QString shownName(const QString &strName)
{
    for (const char *pName : s_names) {
        if (strName == QLatin1String(pName))
            return ThemeMenu::tr(pName);
    }
    return strName;
}

void tell(const QString &strText)
{
    IUi::information(ICore::getMainWindow(), IUi::getTitle(), strText);
}

} // namespace

ThemeMenu::ThemeMenu()
    : QActionGroup(nullptr)
{
    ActionContainer *pView = ActionManager::getActionContainer(QStringLiteral("MenuBar.View"));
    if (!pView)
        return;
    ActionContainer *pMenu = ActionManager::createMenuContainer(QStringLiteral("View.Theme"), tr("Theme"));
    pView->insertMenu(pMenu);
    const IThemesManager &manager = IThemesManager::getInstance();
    for (const ThemesInfo *pInfo : manager.getThemes()) {
        QAction *pAction = addAction(shownName(pInfo->name));
        pAction->setCheckable(true);
        pAction->setData(pInfo->id);
        if (!m_pCurrent && pInfo->id == manager.getCurrentThemeId())
            m_pCurrent = pAction;
    }
    if (m_pCurrent)
        m_pCurrent->setChecked(true);
    pMenu->getMenu()->addActions(actions());
    connect(this, &QActionGroup::triggered, this, &ThemeMenu::choose);
}

// The check mark stays at the theme in force until the next start. Choosing that theme takes back an earlier
// choice and needs no message; any other choice is stored and announced each time it is made.
void ThemeMenu::choose(QAction *pAction)
{
    IThemesManager &manager = IThemesManager::getInstance();
    const QString strId = pAction->data().toString();
    if (!manager.saveThemes(strId))
        tell(tr("Failed to change theme."));
    else if (strId != manager.getCurrentThemeId())
        tell(tr("The theme change will take effect from the next run."));
    pAction->setChecked(false);
    if (m_pCurrent)
        m_pCurrent->setChecked(true);
}
