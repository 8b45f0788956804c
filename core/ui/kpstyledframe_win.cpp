// SPDX-License-Identifier: MIT
#include "ui/kpstyledframe_p.h"

#include <dwmapi.h>
#include <qt_windows.h>
#include <uxtheme.h>
#include <windowsx.h>

using FrameGeometry::Rect;

// Windows sends the undocumented WM_NCUAHDRAWCAPTION and WM_NCUAHDRAWFRAME to have classic frames painted.
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

// winId() creates the window, whose first messages come here and must not start the set-up again.
void KPStyledFrameHelper::Private::setUp()
{
    bSetUp = true;
    const auto hWnd = reinterpret_cast<HWND>(pWidget->winId());
    if (!hWnd) {
        bSetUp = false;
        return;
    }
    // If winId() has just created the window, its WinIdChange event has set it up meanwhile.
    if (pWindow == hWnd)
        return;
    pWindow = hWnd;
    SetWindowLongW(hWnd, GWL_EXSTYLE, GetWindowLongW(hWnd, GWL_EXSTYLE) | WS_EX_LAYERED);
    SetLayeredWindowAttributes(hWnd, RGB(255, 0, 255), 0, LWA_COLORKEY);
    // After a change of window flags the window may have a region, while the record starts without one.
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
        // The compositor draws the shadow only if some of the frame lies in the client area; one line does.
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
    // The system owns the region from now on.
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

// The default handling paints no caption over a window that does not count as visible.
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

// Windows maximizes and restores on a double click only if the window's style has a maximize box. This frame
// asks for none, so what the default handling leaves undone is done here.
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
    case WM_NCACTIVATE: // -1 as lParam keeps the default handling from painting the caption
        return answer(DefWindowProcW(message.hwnd, message.message, message.wParam, -1));
    case WM_SETTEXT:
    case WM_SETICON:
        return !d.bComposition && !d.bThemeActive && answer(defaultWithoutCaption(message));
    case WM_NCCALCSIZE:
        DefWindowProcW(message.hwnd, message.message, message.wParam, message.lParam);
        // lParam points at a RECT or a NCCALCSIZE_PARAMS; both begin with the proposed rectangle.
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
        // Goes on as a double click at (0, 0), because that is what its lParam says: if the title bar covers
        // that corner, the window is maximized or restored, and its contents are laid out anew.
        updateComposition();
        *pResult = 0;
        [[fallthrough]];
    case WM_LBUTTONDBLCLK:
        return toggleMaximized(message.lParam, pResult);
    default:
        return false;
    }
}
