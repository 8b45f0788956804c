// SPDX-License-Identifier: MIT
#include "ui/kpstyledframe.h"

struct KPStyledFrameHelper::Private
{
    QWidget *pWidget;
};

KPStyledFrameHelper::KPStyledFrameHelper(QWidget *pWidget)
    : d(new Private {pWidget})
{
}

KPStyledFrameHelper::~KPStyledFrameHelper() = default;

bool KPStyledFrameHelper::handleNativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult)
{
    Q_UNUSED(eventType)
    Q_UNUSED(pMessage)
    Q_UNUSED(pResult)
    return false;
}
