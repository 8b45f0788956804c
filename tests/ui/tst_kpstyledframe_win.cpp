// SPDX-License-Identifier: MIT
// The frame on a real window, by the messages that Windows sends to it.
#include <ui/kpstyledframe.h>
#include <ui/nativescreen.h>

#include "framerows.h"

#include <QMainWindow>
#include <QSettings>
#include <QWindow>
#include <QtTest>

#include <qt_windows.h>
#include <uxtheme.h>

using namespace FrameRows;

namespace {

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
    const int nBorder = GetSystemMetrics(SM_CXPADDEDBORDER) + GetSystemMetrics(SM_CXSIZEFRAME);
    return {nBorder, GetSystemMetrics(SM_CXBORDER) + 2 * nBorder};
}

Rect monitorRect(Rect *pWorkArea)
{
    MONITORINFO info {};
    info.cbSize = sizeof info;
    GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &info);
    *pWorkArea = fromNative(info.rcWork);
    return fromNative(info.rcMonitor);
}

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
        QTest::qWait(500);
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

    void hits_data() { addRows(s_hits); }
    void hits()
    {
        const HitRow &r = row(s_hits);
        for (const QPoint &place : {QPoint(200, 100), QPoint(-60, -40)}) {
            SetWindowPos(hWnd(), nullptr, place.x(), place.y(), 640, 480, SWP_NOZORDER);
            QCOMPARE(clientSize(), QSize(640, 480));
            QCOMPARE(hitAt(r.x, r.y), static_cast<LRESULT>(r.hit));
        }
    }

    void aWindowOfFixedSizeIsAllContent_data() { addRows(s_hits); }
    void aWindowOfFixedSizeIsAllContent()
    {
        const HitRow &r = row(s_hits);
        m_pFrame->overrideWindowFlags(m_pFrame->windowFlags() | Qt::MSWindowsFixedSizeDialogHint);
        QCOMPARE(hitAt(r.x, r.y), HTCLIENT);
    }

    void aMaximizedWindowIsAllContentAndFillsTheWorkArea()
    {
        maximize();
        for (const HitRow &r : s_hits)
            QCOMPARE(hitAt(r.x, r.y), HTCLIENT);
        RECT client {};
        GetClientRect(hWnd(), &client);
        MapWindowPoints(hWnd(), nullptr, reinterpret_cast<POINT *>(&client), 2);
        QCOMPARE(fromNative(client), s_workArea);
    }

    void maximizedRectangles_data()
    {
        addRows(s_maximized,
            [](const MaximizedRow &r) { return r.monitor == s_monitor && r.workArea == s_workArea; });
    }
    void maximizedRectangles()
    {
        const MaximizedRow &r = row(s_maximized);
        RECT rect {r.proposed.nLeft, r.proposed.nTop, r.proposed.nRight, r.proposed.nBottom};
        QCOMPARE(SendMessageW(hWnd(), WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&rect)), 0);
        QCOMPARE(fromNative(rect), r.proposed);

        maximize();
        NCCALCSIZE_PARAMS params {};
        params.rgrc[0] = rect;
        QCOMPARE(SendMessageW(hWnd(), WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params)), 0);
        QCOMPARE(fromNative(params.rgrc[0]), r.expected);
    }

    void activationIsAnsweredByTheDefaultAlone()
    {
        for (const BOOL bActive : {FALSE, TRUE}) {
            const Answer answer = answerTo(WM_NCACTIVATE, bActive, 0);
            QVERIFY(answer.bHandled);
            QCOMPARE(answer.nResult, TRUE);
        }
    }

    void nothingPaintsAFrame()
    {
        for (const UINT nMessage : {UINT(WM_NCPAINT), 0x00aeu, 0x00afu}) {
            const Answer answer = answerTo(nMessage, 0, 0);
            QVERIFY(answer.bHandled);
            QCOMPARE(answer.nResult, 0);
        }
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
    void anotherSizeRepaintsTheEdges_data() { addRows(s_strips); }
    void anotherSizeRepaintsTheEdges()
    {
        const StripsRow &r = row(s_strips);
        setSize(r.oldSize);
        const HRGN hFound = CreateRectRgn(0, 0, 0, 0);
        m_pFrame->beforeSize = [this] { ValidateRect(hWnd(), nullptr); };
        m_pFrame->afterSize = [this, hFound] { GetUpdateRgn(hWnd(), hFound, FALSE); };
        setSize(r.newSize);
        m_pFrame->afterSize = nullptr;

        const HRGN hExpected =
            CreateRectRgn(r.column.nLeft, r.column.nTop, r.column.nRight, r.column.nBottom);
        const HRGN hRow = CreateRectRgn(r.row.nLeft, r.row.nTop, r.row.nRight, r.row.nBottom);
        const HRGN hClient = CreateRectRgn(0, 0, r.newSize.width(), r.newSize.height());
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

    void pointsAreLogical_data()
    {
        const double dRatio = qApp->devicePixelRatio();
        addRows(s_points, [dRatio](const PointRow &r) { return qFuzzyCompare(r.ratio, dRatio); });
    }
    void pointsAreLogical()
    {
        const PointRow &r = row(s_points);
        m_pFrame->titleBar = QRect(-1000, -1000, 2000, 2000);
        m_pFrame->asked.clear();
        QVERIFY(answerTo(WM_LBUTTONDOWN, MK_LBUTTON, toParam(r.physical)).bHandled);
        QCOMPARE(m_pFrame->asked, QList<QPoint>({r.logical}));
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

    [[nodiscard]] LRESULT hitAt(At x, At y) const
    {
        const QSize size = clientSize();
        const Borders bands = systemBorders();
        POINT point {coordinate(x, size.width(), bands), coordinate(y, size.height(), bands)};
        ClientToScreen(hWnd(), &point);
        return SendMessageW(hWnd(), WM_NCHITTEST, 0, toParam({point.x, point.y}));
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
