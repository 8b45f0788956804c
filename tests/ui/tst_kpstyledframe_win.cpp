// SPDX-License-Identifier: MIT
// The frame on a real window, by the messages that Windows sends to it. What is decided without a window has
// a test of its own and is what the answers are compared with.
#include <ui/framegeometry.h>
#include <ui/kpstyledframe.h>
#include <ui/nativescreen.h>

#include <support/rows.h>

#include <QMainWindow>
#include <QSettings>
#include <QWindow>
#include <QtTest>

#include <dwmapi.h>
#include <qt_windows.h>
#include <uxtheme.h>

using namespace FrameGeometry;

namespace {

// The display that the tests for Windows run on.
constexpr Rect s_monitor {0, 0, 1280, 800};
constexpr Rect s_workArea {0, 0, 1280, 760};

constexpr Qt::WindowFlags s_mainWindowFlags =
    Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint;

/// Puts the user's theme back when it goes.
class ThemeKeeper
{
public:
    ThemeKeeper()
    {
        const auto keys = m_registry.childKeys();
        for (const QString &strKey : keys)
            m_values.insert(strKey, m_registry.value(strKey));
    }
    ~ThemeKeeper()
    {
        for (auto it = m_values.cbegin(); it != m_values.cend(); ++it)
            m_registry.setValue(it.key(), it.value());
    }

private:
    QSettings m_registry {
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager"),
        QSettings::NativeFormat};
    QVariantMap m_values;
};

/// What the frame answered to one message.
struct Answer
{
    bool bHandled = false;
    qintptr nResult = 0;
    WPARAM wParam = 0;
};

/// A frame that keeps the answers it gave. It drags by `titleBar`, and the move of the system, which would
/// wait for a hand, is only noted.
class Frame : public KPStyledFrame<QMainWindow>
{
public:
    void makeAnew()
    {
        destroy();
        create();
    }

    QRect titleBar;
    QMultiHash<UINT, Answer> answers;
    mutable QList<QPoint> asked;
    std::function<void()> beforeSize;
    std::function<void()> afterSize;

    bool nativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult) override
    {
        const MSG &message = *static_cast<const MSG *>(pMessage);
        const bool bSize = message.message == WM_WINDOWPOSCHANGED;
        if (bSize && beforeSize)
            beforeSize();
        const bool bHandled = KPStyledFrame::nativeEvent(eventType, pMessage, pResult);
        answers.insert(message.message, {bHandled, *pResult, message.wParam});
        if (bSize && afterSize)
            afterSize();
        return bHandled || message.message == WM_NCLBUTTONDOWN;
    }

protected:
    bool isStyledFrameTitleBar(int x, int y) const override
    {
        asked.append({x, y});
        return titleBar.contains(x, y);
    }
};

Rect fromNative(const RECT &rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

LPARAM toParam(const QPoint &point)
{
    return MAKELPARAM(point.x(), point.y());
}

Borders systemBorders()
{
    return borders(
        GetSystemMetrics(SM_CXPADDEDBORDER), GetSystemMetrics(SM_CXSIZEFRAME), GetSystemMetrics(SM_CXBORDER));
}

Rect monitorRect(Rect *pWorkArea)
{
    MONITORINFO info {};
    info.cbSize = sizeof info;
    GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &info);
    *pWorkArea = fromNative(info.rcWork);
    return fromNative(info.rcMonitor);
}

MARGINS s_shadow {};

/// While it lives the core finds a compositor, which Wine does not have: its imports lead here.
class Compositor
{
public:
    Compositor()
    {
        replace("DwmIsCompositionEnabled", [](BOOL *pEnabled) { return *pEnabled = TRUE, S_OK; });
        replace("DwmExtendFrameIntoClientArea",
            [](HWND, const MARGINS *pMargins) { return s_shadow = *pMargins, S_OK; });
    }
    ~Compositor()
    {
        for (const auto &[ppImport, pOriginal] : m_replaced)
            *ppImport = pOriginal;
    }

private:
    template <typename Function>
    void replace(const char *pName, Function function)
    {
        auto *pBase = reinterpret_cast<BYTE *>(GetModuleHandleW(L"libcore.dll"));
        const auto *pHeaders = reinterpret_cast<IMAGE_NT_HEADERS *>(
            pBase + reinterpret_cast<IMAGE_DOS_HEADER *>(pBase)->e_lfanew);
        const auto &table = pHeaders->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
        auto **ppImports = reinterpret_cast<void **>(pBase + table.VirtualAddress);
        auto *pOriginal = reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"dwmapi.dll"), pName));
        auto **ppImport = std::find(ppImports, ppImports + table.Size / sizeof(void *), pOriginal);
        DWORD nOld = 0;
        VirtualProtect(ppImport, sizeof(void *), PAGE_READWRITE, &nOld);
        *ppImport = reinterpret_cast<void *>(+function);
        m_replaced.append({ppImport, pOriginal});
    }

    QList<std::pair<void **, void *>> m_replaced;
};

} // namespace

class tst_KPStyledFrameWin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Rect workArea;
        QCOMPARE(monitorRect(&workArea), s_monitor);
        QTRY_COMPARE((monitorRect(&workArea), workArea), s_workArea);
    }

    void init() { show(s_mainWindowFlags); }
    void cleanup() { m_pFrame.reset(); }

    // Only real Windows can decide: under Wine the first paint takes the layer and its color key away.
    void setUpOutlastsTheFirstPaint()
    {
        m_pFrame->repaint();
        if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version"))
            QEXPECT_FAIL("", "Wine drops the layer when the window is painted", Continue);
        QVERIFY(isSetUp(m_pFrame->winId()));
    }

    void setUpHoldsForEachNativeWindow()
    {
        Frame frame;
        QVERIFY(frame.internalWinId());
        QVERIFY(isSetUp(frame.internalWinId()));
        frame.setWindowFlags(s_mainWindowFlags);
        frame.show();
        QVERIFY(isSetUp(frame.internalWinId()));
        const WId first = frame.internalWinId();
        frame.makeAnew();
        QVERIFY(frame.internalWinId() != first);
        QVERIFY(isSetUp(frame.internalWinId()));
    }

    void otherFlagsLeaveNoRegionOfTheMaximizedWindow()
    {
        maximize();
        m_pFrame->setWindowFlags(s_mainWindowFlags | Qt::WindowMaximizeButtonHint);
        m_pFrame->showNormal();
        QTRY_COMPARE(region(), Rect({0, 0, 32767, 32767}));
    }

    void hits()
    {
        for (const QPoint &place : {QPoint(200, 100), QPoint(-60, -40)}) {
            SetWindowPos(hWnd(), nullptr, place.x(), place.y(), 640, 480, SWP_NOZORDER);
            QCOMPARE(clientSize(), QSize(640, 480));
            compareHits(true);
        }
        m_pFrame->overrideWindowFlags(m_pFrame->windowFlags() | Qt::MSWindowsFixedSizeDialogHint);
        compareHits(false);
    }

    void aMaximizedWindowIsAllContentAndFillsTheWorkArea()
    {
        maximize();
        compareHits(false);
        RECT client {};
        GetClientRect(hWnd(), &client);
        MapWindowPoints(hWnd(), nullptr, reinterpret_cast<POINT *>(&client), 2);
        QCOMPARE(fromNative(client), s_workArea);
    }

    void maximizedRectangles()
    {
        const auto answerFor = [this](BOOL bParams, const Rect &proposed) {
            NCCALCSIZE_PARAMS params {};
            params.rgrc[0] = {proposed.nLeft, proposed.nTop, proposed.nRight, proposed.nBottom};
            const auto nParams = reinterpret_cast<LPARAM>(&params); // the rectangle itself comes first
            return SendMessageW(hWnd(), WM_NCCALCSIZE, bParams, nParams) == 0 ? fromNative(params.rgrc[0])
                                                                              : Rect();
        };
        const Rect rects[] = {s_workArea, s_monitor, {-8, -8, 1288, 768}, {-8, 0, 1288, 700},
            {100, 0, 1200, 800}, {10, 20, 1200, 700}, {5, 7, 1285, 767}};
        for (const Rect &proposed : rects)
            QCOMPARE(answerFor(FALSE, proposed), proposed);
        maximize();
        for (const Rect &proposed : rects)
            QCOMPARE(answerFor(TRUE, proposed), maximizedRect(proposed, s_workArea, s_monitor));
    }

    void nothingPaintsAFrame()
    {
        const std::tuple<UINT, WPARAM, qintptr> messages[] = {{WM_NCACTIVATE, FALSE, TRUE},
            {WM_NCACTIVATE, TRUE, TRUE}, {WM_NCPAINT, 0, 0}, {0x00ae, 0, 0}, {0x00af, 0, 0}};
        for (const auto &[nMessage, wParam, nResult] : messages) {
            const Answer answer = answerTo(nMessage, wParam, 0);
            QVERIFY(answer.bHandled);
            QCOMPARE(answer.nResult, nResult);
        }
    }

    void aCompositorPaintsAShadowAroundTheWholeWindow()
    {
        {
            const Compositor compositor;
            answerTo(WM_DWMCOMPOSITIONCHANGED, 0, 0);
            QCOMPARE(region(), Rect());
            QCOMPARE(s_shadow.cyTopHeight, 1);
            QCOMPARE(s_shadow.cxLeftWidth + s_shadow.cxRightWidth + s_shadow.cyBottomHeight, 0);
            QVERIFY(!answerTo(WM_NCPAINT, 1, 0).bHandled);
            maximize();
            QCOMPARE(region(), Rect({0, 0, s_workArea.width(), s_workArea.height()}));
            m_pFrame->showNormal();
            QTRY_COMPARE(region(), Rect());
        }
        answerTo(WM_DWMCOMPOSITIONCHANGED, 0, 0);
        QCOMPARE(region(), Rect({0, 0, 32767, 32767}));
        QVERIFY(answerTo(WM_NCPAINT, 1, 0).bHandled);
    }

    void theRegionIsUnboundedUnlessMaximized()
    {
        QCOMPARE(region(), Rect({0, 0, 32767, 32767}));
        maximize();
        QCOMPARE(region(), Rect({0, 0, s_workArea.width(), s_workArea.height()}));
        m_pFrame->showNormal();
        QTRY_COMPARE(region(), Rect({0, 0, 32767, 32767}));
    }

    void theRegionFollowsAFrameChangeWithoutAnotherSize()
    {
        const UINT nStay = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
        SetWindowLongW(hWnd(), GWL_STYLE, GetWindowLongW(hWnd(), GWL_STYLE) | WS_MAXIMIZE);
        WINDOWPOS position {hWnd(), nullptr, 0, 0, 0, 0, nStay};
        SendMessageW(hWnd(), WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
        QCOMPARE(region(), Rect({0, 0, 32767, 32767}));
        position.flags |= SWP_FRAMECHANGED;
        SendMessageW(hWnd(), WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
        QCOMPARE(region(), Rect({0, 0, 640, 480}));
    }

    void anotherMonitorHasTheFrameWorkedOutAnew()
    {
        RECT before, after;
        GetWindowRect(hWnd(), &before);
        m_pFrame->answers.clear();
        NativeScreen::refreshFrame(m_pFrame.get());
        GetWindowRect(hWnd(), &after);
        QVERIFY(m_pFrame->answers.contains(WM_NCCALCSIZE));
        QCOMPARE(fromNative(after), fromNative(before));

        MSG message {hWnd(), 0x02E0, 0, 0, 0, {0, 0}};
        QVERIFY(NativeScreen::isScaleChange("windows_generic_MSG", &message));
        QVERIFY(!NativeScreen::isScaleChange("xcb_generic_event_t", &message));
        message.message = WM_SIZE;
        QVERIFY(!NativeScreen::isScaleChange("windows_generic_MSG", &message));
    }

    // Validating everything before the frame sees the new size leaves only what the frame itself invalidates.
    void anotherSizeRepaintsTheEdges_data()
    {
        const auto row = columns<QSize, QSize>("oldSize", "newSize");
        row("growing", {400, 300}, {500, 350});
        row("shrinking", {500, 350}, {400, 300});
        row("wider and lower", {400, 350}, {500, 300});
        row("another height alone", {400, 300}, {400, 350});
    }
    void anotherSizeRepaintsTheEdges()
    {
        QFETCH(QSize, oldSize);
        QFETCH(QSize, newSize);
        setSize(oldSize);
        const HRGN hFound = CreateRectRgn(0, 0, 0, 0);
        m_pFrame->beforeSize = [this] { ValidateRect(hWnd(), nullptr); };
        m_pFrame->afterSize = [this, hFound] { GetUpdateRgn(hWnd(), hFound, FALSE); };
        setSize(newSize);
        m_pFrame->afterSize = nullptr;

        const auto [column, row] = edgeRepaint(oldSize, newSize);
        const HRGN hExpected = CreateRectRgn(column.nLeft, column.nTop, column.nRight, column.nBottom);
        const HRGN hRow = CreateRectRgn(row.nLeft, row.nTop, row.nRight, row.nBottom);
        const HRGN hClient = CreateRectRgn(0, 0, newSize.width(), newSize.height());
        CombineRgn(hExpected, hExpected, hRow, RGN_OR);
        CombineRgn(hExpected, hExpected, hClient, RGN_AND);
        QVERIFY(EqualRgn(hFound, hExpected));
        for (const HRGN hRegion : {hFound, hExpected, hRow, hClient})
            DeleteObject(hRegion);
    }

    void aPressOnTheTitleBarDrags()
    {
        m_pFrame->titleBar = QRect(0, 0, 300, 30);
        SetCapture(hWnd());
        const Answer answer = answerTo(WM_LBUTTONDOWN, MK_LBUTTON, toParam({20, 10}));
        QVERIFY(answer.bHandled);
        QCOMPARE(answer.nResult, 0);
        QCOMPARE(lastAnswer(WM_NCLBUTTONDOWN).wParam, WPARAM(HTCAPTION));
        QVERIFY(!GetCapture());
    }

    void aPressBesideTheTitleBarIsForTheWidgets()
    {
        m_pFrame->titleBar = QRect(0, 0, 300, 30);
        QVERIFY(!answerTo(WM_LBUTTONDOWN, MK_LBUTTON, toParam({320, 300})).bHandled);
        QVERIFY(!answerTo(WM_LBUTTONDBLCLK, MK_LBUTTON, toParam({320, 300})).bHandled);
        QVERIFY(!m_pFrame->answers.contains(WM_NCLBUTTONDOWN));
        QVERIFY(!m_pFrame->answers.contains(WM_NCLBUTTONDBLCLK));
        QVERIFY(!IsZoomed(hWnd()));
        SendMessageW(hWnd(), WM_LBUTTONUP, 0, toParam({320, 300}));
    }

    void pointsAreLogical()
    {
        m_pFrame->titleBar = QRect(-1000, -1000, 2000, 2000);
        for (const QPoint &physical : {QPoint(17, -3), QPoint(3, 5), QPoint(2, 5), QPoint(-2, -5)}) {
            m_pFrame->asked.clear();
            QVERIFY(answerTo(WM_LBUTTONDOWN, MK_LBUTTON, toParam(physical)).bHandled);
            QCOMPARE(m_pFrame->asked, QList<QPoint>({logicalPoint(physical, qApp->devicePixelRatio())}));
        }
    }

    void aDoubleClickOnTheTitleBarMaximizesAndRestores()
    {
        m_pFrame->titleBar = QRect(0, 0, 300, 30);
        const QRect normal = m_pFrame->geometry();
        const Answer answer = answerTo(WM_LBUTTONDBLCLK, MK_LBUTTON, toParam({20, 10}));
        QVERIFY(answer.bHandled);
        QCOMPARE(answer.nResult, 0);
        QCOMPARE(lastAnswer(WM_NCLBUTTONDBLCLK).wParam, WPARAM(HTCAPTION));
        QTRY_VERIFY(IsZoomed(hWnd()) && m_pFrame->isMaximized());
        answerTo(WM_LBUTTONDBLCLK, MK_LBUTTON, toParam({20, 10}));
        QTRY_VERIFY(!IsZoomed(hWnd()) && !m_pFrame->isMaximized());
        QTRY_COMPARE(m_pFrame->geometry(), normal);
    }

    void aChangeOfCompositionIsADoubleClickInTheCorner()
    {
        m_pFrame->titleBar = QRect(1, 0, 300, 30);
        QVERIFY(!answerTo(WM_DWMCOMPOSITIONCHANGED, 0, 0).bHandled);
        QVERIFY(!IsZoomed(hWnd()));
        m_pFrame->titleBar = QRect(0, 0, 300, 30);
        const Answer answer = answerTo(WM_DWMCOMPOSITIONCHANGED, 0, 0);
        QVERIFY(answer.bHandled);
        QCOMPARE(answer.nResult, 0);
        QTRY_VERIFY(IsZoomed(hWnd()));
    }

    // Only with the classic frame the default handling would paint a caption over the window. Wine remembers
    // that theming was disabled.
    void withoutAThemeTextAndIconAreSetWithoutACaption()
    {
        const ThemeKeeper keeper;
        for (const BOOL bTheme : {TRUE, FALSE}) {
            EnableTheming(bTheme);
            QCOMPARE(bool(IsThemeActive()), bool(bTheme));
            QVERIFY(!answerTo(WM_THEMECHANGED, 0, 0).bHandled);
            const QString strText = bTheme ? QStringLiteral("Themed") : QStringLiteral("Classic");
            m_pFrame->answers.clear();
            SetWindowTextW(hWnd(), reinterpret_cast<const wchar_t *>(strText.utf16()));
            QCOMPARE(lastAnswer(WM_SETTEXT).bHandled, !bTheme);
            QCOMPARE(answerTo(WM_SETICON, ICON_SMALL, 0).bHandled, !bTheme);
            wchar_t text[64] {};
            GetWindowTextW(hWnd(), text, 64);
            QCOMPARE(QString::fromWCharArray(text), strText);
            QVERIFY(IsWindowVisible(hWnd()));
        }
    }

    void messagesFromElsewhereAreLeftAlone()
    {
        MSG message {hWnd(), WM_NCHITTEST, 0, 0, 0, {}};
        qintptr nResult = 0;
        QVERIFY(!m_pFrame->nativeEvent("windows_dispatcher_MSG", &message, &nResult));
        QVERIFY(m_pFrame->nativeEvent("windows_generic_MSG", &message, &nResult));
    }

private:
    [[nodiscard]] HWND hWnd() const { return reinterpret_cast<HWND>(m_pFrame->winId()); }

    void show(Qt::WindowFlags flags)
    {
        m_pFrame = std::make_unique<Frame>();
        m_pFrame->setWindowFlags(flags);
        m_pFrame->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pFrame.get()));
        SetWindowPos(hWnd(), nullptr, 200, 100, 640, 480, SWP_NOZORDER);
        QTRY_COMPARE(clientSize(), QSize(640, 480));
        m_pFrame->answers.clear();
    }

    void maximize()
    {
        m_pFrame->showMaximized();
        QTRY_VERIFY(IsZoomed(hWnd()));
    }

    void setSize(const QSize &size)
    {
        SetWindowPos(hWnd(), nullptr, 0, 0, size.width(), size.height(), SWP_NOZORDER | SWP_NOMOVE);
        QCOMPARE(clientSize(), size);
    }

    [[nodiscard]] QSize clientSize() const
    {
        RECT client {};
        GetClientRect(hWnd(), &client);
        return {client.right, client.bottom};
    }

    // At all places where something else may begin.
    void compareHits(bool bResizable) const
    {
        const Borders bands = systemBorders();
        const QSize size = clientSize();
        const auto places = [&](int nLength) {
            const auto [nBorder, nCorner] = bands;
            return QList<int> {-1, 0, nBorder - 1, nBorder, nCorner - 1, nCorner, nLength / 2,
                nLength - nCorner - 1, nLength - nCorner, nLength - nBorder - 1, nLength - nBorder,
                nLength - 1};
        };
        for (const int x : places(size.width())) {
            for (const int y : places(size.height())) {
                POINT point {x, y};
                ClientToScreen(hWnd(), &point);
                QCOMPARE(Hit(SendMessageW(hWnd(), WM_NCHITTEST, 0, toParam({point.x, point.y}))),
                    hitTest({x, y}, size, bands, bResizable));
            }
        }
    }

    // A message with several answers has been sent several times; the last comes first.
    [[nodiscard]] Answer lastAnswer(UINT nMessage) const { return m_pFrame->answers.value(nMessage); }

    Answer answerTo(UINT nMessage, WPARAM wParam, LPARAM lParam)
    {
        m_pFrame->answers.clear();
        SendMessageW(hWnd(), nMessage, wParam, lParam);
        return lastAnswer(nMessage);
    }

    [[nodiscard]] Rect region() const { return regionOf(hWnd()); }

    static Rect regionOf(HWND hWindow)
    {
        RECT box {};
        return GetWindowRgnBox(hWindow, &box) == SIMPLEREGION ? fromNative(box) : Rect {};
    }

    static bool isSetUp(WId window)
    {
        const auto hWindow = reinterpret_cast<HWND>(window);
        COLORREF key = 0;
        DWORD nFlags = 0;
        return (GetWindowLongW(hWindow, GWL_EXSTYLE) & WS_EX_LAYERED)
            && GetLayeredWindowAttributes(hWindow, &key, nullptr, &nFlags) && nFlags == LWA_COLORKEY
            && key == RGB(255, 0, 255) && regionOf(hWindow) == Rect {0, 0, 32767, 32767};
    }

    std::unique_ptr<Frame> m_pFrame;
};

QTEST_MAIN(tst_KPStyledFrameWin)
#include "tst_kpstyledframe_win.moc"
