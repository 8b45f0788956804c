// SPDX-License-Identifier: MIT
#include "ui/kpstyledframe.h"

#include "ui/kpstyledframe_p.h"

KPStyledFrameHelper::KPStyledFrameHelper(QWidget *pWidget)
    : d(new Private(this, pWidget))
{
}

KPStyledFrameHelper::~KPStyledFrameHelper() = default;

void KPStyledFrameHelper::setUpNativeWindow()
{
    if (!d->bSetUp && !d->bDisabled)
        d->setUp();
}

// The record describes the old native window, so it begins anew for the new one.
void KPStyledFrameHelper::nativeWindowChanged()
{
    d->pWindow = nullptr;
    d->region = {};
    d->nClientWidth = 0;
    d->nClientHeight = 0;
    d->bSetUp = false;
    if (d->pWidget->internalWinId())
        setUpNativeWindow();
}

bool KPStyledFrameHelper::handleNativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult)
{
    if (d->pWidget->internalWinId())
        setUpNativeWindow();
    return eventType == "windows_generic_MSG" && !d->bDisabled && d->pWindow
        && d->handleMessage(pMessage, pResult);
}

bool KPStyledFrameHelper::Private::isTitleBar(const QPoint &point) const
{
    return pHelper->isStyledFrameTitleBar(point.x(), point.y());
}

bool KPStyledFrameHelper::Private::isResizable(bool bMaximized) const
{
    return !bMaximized && !pWidget->windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint);
}
