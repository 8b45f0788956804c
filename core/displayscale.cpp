// SPDX-License-Identifier: MIT
#include "displayscale.h"

#include "icore.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

int DisplayScale::logicalDpi(const QWidget *pWidget)
{
    const QScreen *pScreen = pWidget ? pWidget->screen() : nullptr;
    if (!pScreen && ICore::getMainWidget())
        pScreen = ICore::getMainWidget()->screen();
    if (!pScreen)
        pScreen = QGuiApplication::primaryScreen();
    return pScreen ? static_cast<int>(pScreen->logicalDotsPerInchX()) : 96;
}
