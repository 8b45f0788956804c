// SPDX-License-Identifier: MIT
#pragma once

#include "ui/framegeometry.h"
#include "ui/kpstyledframe.h"

#include <QColor>
#include <QPoint>

/// What the frame knows of its window. kpstyledframe_win.cpp and kpstyledframe_other.cpp define `Native`.
struct KPStyledFrameHelper::Private
{
    struct Native;

    Private(KPStyledFrameHelper *pHelper, QWidget *pFrame);
    ~Private();

    void setUp();
    bool handleMessage(void *pMessage, qintptr *pResult);
    [[nodiscard]] bool isTitleBar(const QPoint &point) const;
    [[nodiscard]] bool isResizable(bool bMaximized) const;

    void *pWindow = nullptr; // native handle; null until the native window is set up
    FrameGeometry::Rect region; // as last applied; all zero stands for none
    quint32 nClientWidth = 0; // physical pixels
    quint32 nClientHeight = 0;
    bool bThemeActive = false;
    bool bComposition = false;
    QWidget *const pWidget;
    bool bSetUp = false; // set-up was attempted
    bool bDisabled = false;
    QColor borderColor {64, 64, 64, 255};
    qint32 nLogicalDpi; // vertical, at construction

    KPStyledFrameHelper *const pHelper;
    std::unique_ptr<Native> pNative;
};
