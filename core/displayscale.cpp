// SPDX-License-Identifier: MIT
#include "displayscale.h"

#include "icore.h"
#include "mainwindow.h"

#include <QGuiApplication>
#include <QScreen>

int DisplayScale::logicalDpi(const QWidget *pWidget)
{
    const QScreen *pScreen = pWidget ? pWidget->screen() : nullptr;
    if (!pScreen && ICore::getMainWindow())
        pScreen = ICore::getMainWindow()->screen();
    if (!pScreen)
        pScreen = QGuiApplication::primaryScreen();
    return pScreen ? static_cast<int>(pScreen->logicalDotsPerInchX()) : 96;
}
