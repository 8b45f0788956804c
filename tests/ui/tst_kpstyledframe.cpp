// SPDX-License-Identifier: MIT
// The frame on an X display with a window manager; the pointer is moved from outside, as a hand would.
#include <ui/kpstyledframe.h>

#include <QMainWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QProcess>
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
    process.start(QStringLiteral("xdotool"), arguments);
    return QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000)
        && process.error() == QProcess::UnknownError && process.exitCode() == 0;
}

QStringList moveTo(const QPoint &point)
{
    return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
}

const QStringList s_press {QStringLiteral("mousedown"), QStringLiteral("1")};
const QStringList s_release {QStringLiteral("mouseup"), QStringLiteral("1")};
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
        m_pFrame.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void everyEdgeResizes_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("by");
        QTest::addColumn<Qt::CursorShape>("cursor");
        QTest::addColumn<QMargins>("grown");
        const auto add = [](const char *pName, QPoint from, QPoint by, Qt::CursorShape cursor,
                             QMargins grown) { QTest::newRow(pName) << from << by << cursor << grown; };
        add("the right edge moves right", {399, 150}, {60, 9}, Qt::SizeHorCursor, {0, 0, 60, 0});
        add("the left edge moves left", {1, 150}, {-60, 9}, Qt::SizeHorCursor, {60, 0, 0, 0});
        add("the top edge moves up", {200, 3}, {9, -50}, Qt::SizeVerCursor, {0, 50, 0, 0});
        add("the bottom edge moves up", {200, 296}, {9, -50}, Qt::SizeVerCursor, {0, 0, 0, -50});
        add("the top left corner moves both", {15, 0}, {30, 40}, Qt::SizeFDiagCursor, {-30, -40, 0, 0});
        add("the top right corner moves both", {390, 2}, {30, -40}, Qt::SizeBDiagCursor, {0, 40, 30, 0});
        add("the bottom left corner moves both", {3, 299}, {-30, 40}, Qt::SizeBDiagCursor, {30, 0, 0, 40});
        add("the bottom right corner moves both", {399, 299}, {30, 40}, Qt::SizeFDiagCursor, {0, 0, 30, 40});
    }
    void everyEdgeResizes()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, by);
        QFETCH(QMargins, grown);
        QVERIFY(xdotool(moveTo(s_start.topLeft() + from)));
        QTRY_VERIFY(QGuiApplication::overrideCursor());
        QTEST(QGuiApplication::overrideCursor()->shape(), "cursor");
        QVERIFY(drag(from, by));
        QTRY_COMPARE(m_pFrame->geometry(), s_start.marginsAdded(grown));
        QVERIFY(m_pContent->presses.isEmpty());
    }

    void contentInsideTheEdgeGetsItsClicks()
    {
        const QList<QPoint> points {{4, 150}, {395, 150}, {200, 4}, {200, 295}};
        for (const QPoint &point : points)
            QVERIFY(click(point));
        QTRY_COMPARE(m_pContent->presses, points);
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(m_pFrame->geometry(), s_start);
    }

    void contentGetsItsClicksAfterADrag()
    {
        QVERIFY(drag(s_right, {60, 0}));
        QTRY_COMPARE(m_pFrame->width(), 460);
        QVERIFY(click({200, 150}));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({{200, 150}}));
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(m_pFrame->width(), 460);
    }

    void aChildWithANativeWindowKeepsItsClicks()
    {
        m_pContent->setAttribute(Qt::WA_DontCreateNativeAncestors);
        m_pContent->winId();
        QVERIFY(m_pContent->windowHandle());
        QVERIFY(click(s_right));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({s_right}));
    }

    void anotherNativeWindowResizesToo()
    {
        show(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
        QVERIFY(drag(s_right, {60, 0}));
        QTRY_COMPARE(m_pFrame->width(), 460);
    }

    void aWindowOfFixedSizeKeepsIt()
    {
        show(Qt::Window | Qt::FramelessWindowHint | Qt::MSWindowsFixedSizeDialogHint);
        QVERIFY(click(s_right));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({s_right}));
    }

    void aMaximizedWindowHasNoEdges()
    {
        m_pFrame->showMaximized();
        QTRY_COMPARE(m_pFrame->size(), m_pFrame->screen()->availableSize());
        const QPoint point(0, 150);
        QVERIFY(xdotool(moveTo(m_pFrame->mapToGlobal(point)) + s_press + s_release));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({point}));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void anOpenMenuTakesThePressAtTheEdge()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("One"));
        menu.popup(m_pFrame->mapToGlobal(QPoint(100, 100)));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QVERIFY(drag(s_right, {60, 0}));
        QTRY_VERIFY(!menu.isVisible());
        QCOMPARE(m_pFrame->geometry(), s_start);
    }

    void otherButtonsLeaveTheEdgeAlone()
    {
        const QStringList rightClick {QStringLiteral("click"), QStringLiteral("3")};
        QVERIFY(xdotool(moveTo(s_start.topLeft() + s_right) + rightClick));
        QTRY_COMPARE(m_pContent->presses, QList<QPoint>({s_right}));
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
        QTRY_COMPARE(m_pFrame->geometry(), s_start);
        QVERIFY(xdotool(moveTo(s_start.center())));
    }

    // In two steps: the window manager takes the first as the start.
    bool drag(const QPoint &from, const QPoint &by)
    {
        const QPoint start = s_start.topLeft() + from;
        return xdotool(moveTo(start) + s_press) && xdotool(moveTo(start + by / 2))
            && xdotool(moveTo(start + by) + s_release);
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
