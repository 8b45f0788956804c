// SPDX-License-Identifier: MIT
#include "ui/kpstyledframe_p.h"

#include <dwmapi.h>
#include <qt_windows.h>
#include <uxtheme.h>
#include <windowsx.h>

using FrameGeometry::Rect;

// Messages with which the theme service has classic captions and frames painted; no header names them.
constexpr UINT s_nDrawCaption = 0x00ae;
constexpr UINT s_nDrawFrame = 0x00af;

namespace {

Rect fromNative(const RECT &rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

RECT toNative(const Rect &rect)
{
    return {rect.nLeft, rect.nTop, rect.nRight, rect.nBottom};
}

bool isComposited()
{
    BOOL bEnabled = FALSE;
    return SUCCEEDED(DwmIsCompositionEnabled(&bEnabled)) && bEnabled;
}

} // namespace

struct KPStyledFrameHelper::Private::Native
{
    explicit Native(Private &record)
        : d(record)
    {
    }

    [[nodiscard]] HWND window() const { return static_cast<HWND>(d.pWindow); }
    [[nodiscard]] bool isMaximized() const { return IsZoomed(window()); }

    void updateComposition();
    void updateRegion();
    void fitMaximized(RECT *pRect) const;
    void followSize(const WINDOWPOS &position);
    [[nodiscard]] FrameGeometry::Hit hitTest(LPARAM lParam) const;
    [[nodiscard]] LRESULT defaultWithoutCaption(const MSG &message) const;
    [[nodiscard]] bool isTitleBar(LPARAM lParam) const;
    bool dragTitleBar(LPARAM lParam, qintptr *pResult) const;
    bool toggleMaximized(LPARAM lParam, qintptr *pResult) const;
    bool handle(const MSG &message, qintptr *pResult);

    Private &d;
};

KPStyledFrameHelper::Private::Private(KPStyledFrameHelper *pOwner, QWidget *pFrame)
    : pWidget(pFrame)
    , nLogicalDpi(pFrame->logicalDpiY())
    , pHelper(pOwner)
    , pNative(new Native(*this))
{
}

KPStyledFrameHelper::Private::~Private() = default;

// winId() makes the window, and the messages of that come here: the mark is set before.
void KPStyledFrameHelper::Private::setUp()
{
    bSetUp = true;
    const auto hWnd = reinterpret_cast<HWND>(pWidget->winId());
    if (!hWnd) {
        bSetUp = false;
        return;
    }
    // A window that was made just now has reported itself and is set up already.
    if (pWindow == hWnd)
        return;
    pWindow = hWnd;
    SetWindowLongW(hWnd, GWL_EXSTYLE, GetWindowLongW(hWnd, GWL_EXSTYLE) | WS_EX_LAYERED);
    SetLayeredWindowAttributes(hWnd, RGB(255, 0, 255), 0, LWA_COLORKEY);
    // Other flags may leave the window with the region it had, while the record starts without one.
    SetWindowRgn(hWnd, nullptr, FALSE);
    pNative->updateComposition();
    bThemeActive = IsThemeActive() == 1;
}

bool KPStyledFrameHelper::Private::handleMessage(void *pMessage, qintptr *pResult)
{
    return pNative->handle(*static_cast<const MSG *>(pMessage), pResult);
}

void KPStyledFrameHelper::Private::Native::updateComposition()
{
    d.bComposition = isComposited();
    if (d.bComposition) {
        // One line of frame inside the client area is what makes the compositor draw the shadow.
        const MARGINS margins {0, 0, 1, 0};
        DwmExtendFrameIntoClientArea(window(), &margins);
        const DWMNCRENDERINGPOLICY policy = DWMNCRP_ENABLED;
        DwmSetWindowAttribute(window(), DWMWA_NCRENDERING_POLICY, &policy, sizeof policy);
    }
    updateRegion();
}

void KPStyledFrameHelper::Private::Native::updateRegion()
{
    WINDOWINFO info {};
    info.cbSize = sizeof info;
    const bool bMaximized = isMaximized();
    if (bMaximized)
        GetWindowInfo(window(), &info);
    const Rect region = FrameGeometry::windowRegion(
        bMaximized, d.bComposition, fromNative(info.rcWindow), fromNative(info.rcClient));
    const RECT oldRect = toNative(d.region);
    const RECT newRect = toNative(region);
    if (EqualRect(&oldRect, &newRect))
        return;
    d.region = region;
    // The system takes the region over.
    SetWindowRgn(window(), region == Rect {} ? nullptr : CreateRectRgnIndirect(&newRect), TRUE);
}

void KPStyledFrameHelper::Private::Native::fitMaximized(RECT *pRect) const
{
    const HMONITOR hMonitor = MonitorFromWindow(window(), MONITOR_DEFAULTTOPRIMARY);
    MONITORINFO info {};
    info.cbSize = sizeof info;
    if (hMonitor && GetMonitorInfoW(hMonitor, &info)) {
        *pRect = toNative(FrameGeometry::maximizedRect(
            fromNative(*pRect), fromNative(info.rcWork), fromNative(info.rcMonitor)));
    }
}

FrameGeometry::Hit KPStyledFrameHelper::Private::Native::hitTest(LPARAM lParam) const
{
    const QPoint screen = FrameGeometry::messagePoint(lParam);
    POINT point {screen.x(), screen.y()};
    ScreenToClient(window(), &point);
    const auto borders = FrameGeometry::borders(
        GetSystemMetrics(SM_CXPADDEDBORDER), GetSystemMetrics(SM_CXSIZEFRAME), GetSystemMetrics(SM_CXBORDER));
    const QSize client(static_cast<int>(d.nClientWidth), static_cast<int>(d.nClientHeight));
    return FrameGeometry::hitTest({point.x, point.y}, client, borders, d.isResizable(isMaximized()));
}

// While the window does not count as visible, the default handling paints no caption over it.
LRESULT KPStyledFrameHelper::Private::Native::defaultWithoutCaption(const MSG &message) const
{
    const LONG_PTR nStyle = GetWindowLongPtrW(window(), GWL_STYLE);
    SetWindowLongPtrW(window(), GWL_STYLE, nStyle & ~static_cast<LONG_PTR>(WS_VISIBLE));
    const LRESULT nResult = DefWindowProcW(message.hwnd, message.message, message.wParam, message.lParam);
    SetWindowLongPtrW(window(), GWL_STYLE, nStyle);
    return nResult;
}

void KPStyledFrameHelper::Private::Native::followSize(const WINDOWPOS &position)
{
    RECT client {};
    GetClientRect(window(), &client);
    const QSize oldSize(static_cast<int>(d.nClientWidth), static_cast<int>(d.nClientHeight));
    const QSize newSize(client.right - client.left, client.bottom - client.top);
    d.nClientWidth = static_cast<quint32>(newSize.width());
    d.nClientHeight = static_cast<quint32>(newSize.height());
    if (newSize == oldSize) {
        if (position.flags & SWP_FRAMECHANGED)
            updateRegion();
        return;
    }
    updateRegion();
    const auto [column, row] = FrameGeometry::edgeRepaint(oldSize, newSize);
    for (const Rect &strip : {column, row}) {
        const RECT rect = toNative(strip);
        InvalidateRect(window(), &rect, TRUE);
    }
}

bool KPStyledFrameHelper::Private::Native::isTitleBar(LPARAM lParam) const
{
    const QPoint physical = FrameGeometry::messagePoint(lParam);
    return d.isTitleBar(FrameGeometry::logicalPoint(physical, d.pWidget->devicePixelRatioF()));
}

bool KPStyledFrameHelper::Private::Native::dragTitleBar(LPARAM lParam, qintptr *pResult) const
{
    if (!isTitleBar(lParam))
        return false;
    ReleaseCapture();
    SendMessageW(window(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
    *pResult = 0;
    return true;
}

// The system maximises and restores by itself only a window that has a maximise box in its style, and the
// frame does not ask for one.
bool KPStyledFrameHelper::Private::Native::toggleMaximized(LPARAM lParam, qintptr *pResult) const
{
    if (!isTitleBar(lParam))
        return false;
    const bool bMaximized = isMaximized();
    SendMessageW(window(), WM_NCLBUTTONDBLCLK, HTCAPTION, 0);
    if (!bMaximized)
        d.pWidget->showMaximized();
    else if (isMaximized())
        d.pWidget->showNormal();
    *pResult = 0;
    return true;
}

bool KPStyledFrameHelper::Private::Native::handle(const MSG &message, qintptr *pResult)
{
    const auto answer = [pResult](LRESULT nResult) {
        *pResult = nResult;
        return true;
    };
    switch (message.message) {
    case WM_NCACTIVATE: // -1: without painting the caption
        return answer(DefWindowProcW(message.hwnd, message.message, message.wParam, -1));
    case WM_SETTEXT:
    case WM_SETICON:
        return !d.bComposition && !d.bThemeActive && answer(defaultWithoutCaption(message));
    case WM_NCCALCSIZE:
        DefWindowProcW(message.hwnd, message.message, message.wParam, message.lParam);
        // With either wParam the first proposed rectangle is what lParam points at.
        if (isMaximized())
            fitMaximized(reinterpret_cast<RECT *>(message.lParam));
        return answer(0);
    case WM_NCHITTEST:
        return answer(static_cast<LRESULT>(hitTest(message.lParam)));
    case WM_NCPAINT:
        return !d.bComposition && answer(0);
    case s_nDrawCaption:
    case s_nDrawFrame:
        return answer(0);
    case WM_WINDOWPOSCHANGED:
        followSize(*reinterpret_cast<const WINDOWPOS *>(message.lParam));
        return false;
    case WM_LBUTTONDOWN:
        return dragTitleBar(message.lParam, pResult);
    case WM_THEMECHANGED:
        d.bThemeActive = IsThemeActive() == 1;
        return false;
    case WM_DWMCOMPOSITIONCHANGED:
        // Goes on as a double click at (0, 0), which is what its lParam says: a title bar that covers that
        // corner maximises or restores the window, and what is docked in it is laid out anew.
        updateComposition();
        *pResult = 0;
        [[fallthrough]];
    case WM_LBUTTONDBLCLK:
        return toggleMaximized(message.lParam, pResult);
    default:
        return false;
    }
}
