// SPDX-License-Identifier: MIT
#include "ui/nativescreen.h"

bool NativeScreen::isScaleChange(const QByteArray &, const void *)
{
    return false;
}

void NativeScreen::refreshFrame(const QWidget *) { }
