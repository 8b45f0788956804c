// SPDX-License-Identifier: MIT
// The frame on an X display with a window manager; the pointer is moved from outside, as a hand would.
#include <ui/kpstyledframe.h>

#include <support/rows.h>

#include <QMainWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QWindow>
#include <QtTest>

namespace {

/// Fills the window and keeps every press for itself.
class Content : public QWidget
{
public:
    QList<QPoint> presses;

protected:
    void mousePressEvent(QMouseEvent *pEvent) override { presses.append(pEvent->position().toPoint()); }
};

bool xdotool(const QStringList &arguments)
{
    QProcess process;
    QSignalSpy finished(&process, &QProcess::finished);
    process.start("xdotool", arguments);
    return finished.wait(20000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QStringList moveTo(const QPoint &point)
{
    return {"mousemove", QString::number(point.x()), QString::number(point.y())};
}

const QStringList s_press {"mousedown", "1"};
const QStringList s_release {"mouseup", "1"};
const QRect s_start(300, 200, 400, 300);
const QPoint s_right(399, 150);

} // namespace

class tst_KPStyledFrame : public QObject
{
    Q_OBJECT

private slots:
    void init() { show({}); }

    void cleanup()
    {
        QVERIFY(xdotool(s_release));
        m_pFrame.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void everyEdgeResizes_data()
    {
        const auto add = columns<QPoint, QPoint, Qt::CursorShape, QMargins>("from", "by", "cursor", "edges");
        add("the right edge moves right", {399, 150}, {60, 9}, Qt::SizeHorCursor, {0, 0, 1, 0});
        add("the left edge moves left", {1, 150}, {-60, 9}, Qt::SizeHorCursor, {1, 0, 0, 0});
        add("the top edge moves up", {200, 3}, {9, -50}, Qt::SizeVerCursor, {0, 1, 0, 0});
        add("the bottom edge moves up", {200, 296}, {9, -50}, Qt::SizeVerCursor, {0, 0, 0, -1});
        add("the top left corner moves both", {15, 0}, {30, 40}, Qt::SizeFDiagCursor, {-1, -1, 0, 0});
        add("the top right corner moves both", {390, 2}, {30, -40}, Qt::SizeBDiagCursor, {0, 1, 1, 0});
        add("the bottom left corner moves both", {3, 299}, {-30, 40}, Qt::SizeBDiagCursor, {1, 0, 0, 1});
        add("the bottom right corner moves both", {399, 299}, {30, 40}, Qt::SizeFDiagCursor, {0, 0, 1, 1});
    }
    void everyEdgeResizes()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, by);
        QFETCH(QMargins, edges);
        QVERIFY(xdotool(moveTo(s_start.topLeft() + from)));
        QVERIFY(QTest::qWaitFor([] { return QGuiApplication::overrideCursor(); })); // sooner than QTRY_VERIFY
        QTEST(QGuiApplication::overrideCursor()->shape(), "cursor");
        QVERIFY(drag(from, by));
        QVERIFY(QTest::qWaitFor([&] { return moved() == edges; }));
        QVERIFY(m_pContent->presses.isEmpty());
    }

    void contentInsideTheEdgeGetsItsClicks()
    {
        const QList<QPoint> points {{4, 150}, {395, 150}, {200, 4}, {200, 295}};
        for (const QPoint &point : points)
            QVERIFY(click(point));
        QTRY_COMPARE(m_pContent->presses, points);
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(xdotool(moveTo(s_start.topLeft() + s_right) + QStringList {"click", "3"}));
        QTRY_COMPARE(m_pContent->presses, points + QList<QPoint>({s_right}));
        QCOMPARE(m_pFrame->geometry(), s_start);
    }

    void aChildWithANativeWindowKeepsItsClicks()
    {
        m_pContent->setAttribute(Qt::WA_DontCreateNativeAncestors);
        m_pContent->winId();
        QVERIFY(m_pContent->windowHandle());
        QVERIFY(click(s_right));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({s_right}));
    }

    void anotherNativeWindowResizesTooUnlessOfFixedSize()
    {
        show(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
        QVERIFY(drag(s_right, {60, 0}));
        QTRY_COMPARE(moved(), QMargins(0, 0, 1, 0));
        QVERIFY(click({200, 150})); // the drag is over
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({{200, 150}}));
        QVERIFY(!QGuiApplication::overrideCursor());
        show(Qt::Window | Qt::FramelessWindowHint | Qt::MSWindowsFixedSizeDialogHint);
        QVERIFY(click(s_right));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({s_right}));
    }

    void aMaximizedWindowHasNoEdges()
    {
        m_pFrame->showMaximized();
        QTRY_COMPARE(m_pFrame->geometry(), m_pFrame->screen()->availableGeometry());
        const QPoint point(0, 150);
        QVERIFY(xdotool(moveTo(m_pFrame->mapToGlobal(point)) + s_press + s_release));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({point}));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void anOpenMenuTakesThePressAtTheEdge()
    {
        QMenu menu;
        menu.addAction("One");
        menu.popup(m_pFrame->mapToGlobal(QPoint(100, 100)));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QVERIFY(click(s_right));
        QTRY_VERIFY(!menu.isVisible());
        QCOMPARE(m_pFrame->geometry(), s_start);
    }

private:
    void show(Qt::WindowFlags flags)
    {
        m_pFrame = std::make_unique<KPStyledFrame<QMainWindow>>();
        m_pContent = new Content;
        m_pContent->setMouseTracking(true);
        m_pFrame->setCentralWidget(m_pContent);
        if (flags)
            m_pFrame->setWindowFlags(flags);
        m_pFrame->setGeometry(s_start);
        m_pFrame->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pFrame.get()));
        QVERIFY(QTest::qWaitFor([&] { return m_pFrame->geometry() == s_start; }));
        QVERIFY(xdotool(moveTo(s_start.center())));
    }

    // Moves on until the window follows, because the window manager begins late, measures from where the
    // pointer is then and may leave out steps.
    bool drag(const QPoint &from, const QPoint &by)
    {
        const QPoint start = s_start.topLeft() + from;
        bool bFollows = xdotool(moveTo(start) + s_press);
        for (int nStep = 1; nStep <= 16 && bFollows && m_pFrame->geometry() == s_start; ++nStep) {
            bFollows = xdotool(moveTo(start + by * nStep / 16));
            (void)QTest::qWaitFor([&] { return m_pFrame->geometry() != s_start; }, 500);
        }
        return xdotool(s_release) && bFollows;
    }

    // By edge: 1 outwards, -1 inwards, 0 not at all.
    QMargins moved() const
    {
        const auto sign = [](int n) { return (n > 0) - (n < 0); };
        const QPoint first = s_start.topLeft() - m_pFrame->geometry().topLeft();
        const QPoint last = m_pFrame->geometry().bottomRight() - s_start.bottomRight();
        return {sign(first.x()), sign(first.y()), sign(last.x()), sign(last.y())};
    }

    bool click(const QPoint &point)
    {
        return xdotool(moveTo(s_start.topLeft() + point) + s_press + s_release);
    }

    std::unique_ptr<KPStyledFrame<QMainWindow>> m_pFrame;
    Content *m_pContent = nullptr;
};

QTEST_MAIN(tst_KPStyledFrame)
#include "tst_kpstyledframe.moc"
