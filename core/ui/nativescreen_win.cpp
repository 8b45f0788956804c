// SPDX-License-Identifier: MIT
#include "ui/nativescreen.h"

#include <QWidget>

#include <qt_windows.h>

bool NativeScreen::isScaleChange(const QByteArray &eventType, const void *pMessage)
{
    constexpr UINT nDpiChanged = 0x02E0; // WM_DPICHANGED, which older headers lack
    return eventType == "windows_generic_MSG" && static_cast<const MSG *>(pMessage)->message == nDpiChanged;
}

void NativeScreen::refreshFrame(const QWidget *pWindow)
{
    const HWND hWindow = reinterpret_cast<HWND>(pWindow->winId());
    RECT rect;
    if (GetWindowRect(hWindow, &rect)) {
        SetWindowPos(hWindow, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
            SWP_FRAMECHANGED | SWP_NOMOVE);
    }
}
