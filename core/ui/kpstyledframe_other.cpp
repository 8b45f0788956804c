// SPDX-License-Identifier: MIT
#include "ui/kpstyledframe_p.h"

#include "displayscale.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWindow>

#include <algorithm>
#include <iterator>

using FrameGeometry::Hit;

namespace {

struct EdgeBehaviour
{
    Hit hit;
    Qt::Edges edges;
    Qt::CursorShape cursor;
};

constexpr EdgeBehaviour s_edges[] = {
    {Hit::Left, Qt::LeftEdge, Qt::SizeHorCursor},
    {Hit::Right, Qt::RightEdge, Qt::SizeHorCursor},
    {Hit::Top, Qt::TopEdge, Qt::SizeVerCursor},
    {Hit::Bottom, Qt::BottomEdge, Qt::SizeVerCursor},
    {Hit::TopLeft, Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor},
    {Hit::BottomRight, Qt::BottomEdge | Qt::RightEdge, Qt::SizeFDiagCursor},
    {Hit::TopRight, Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor},
    {Hit::BottomLeft, Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor},
};

// In pixels at a display scale of 100 percent: narrow enough to leave a scroll bar at the edge usable.
constexpr int s_nBorder = 4;
constexpr int s_nCorner = 16;

bool isWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

/// Filters the events of the native window, which Qt delivers before those of the widgets in it. A child with
/// a native window of its own keeps its events, because a resize would start from the wrong point; where such
/// a child fills the window, only the window's margin resizes it.
struct KPStyledFrameHelper::Private::Native : public QObject
{
    explicit Native(Private &record)
        : d(record)
    {
        qApp->installEventFilter(this);
    }
    ~Native() override { showCursor(nullptr); }

    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
    bool press(const QMouseEvent &event);
    bool move(const QMouseEvent &event);
    void showCursor(const EdgeBehaviour *pEdge);
    [[nodiscard]] const EdgeBehaviour *edgeAt(const QPoint &point) const;

    Private &d;
    const EdgeBehaviour *pShown = nullptr; // the edge whose cursor overrides those of the widgets
    QPoint pressPoint;
    bool bTitlePressed = false;
};

KPStyledFrameHelper::Private::Private(KPStyledFrameHelper *pOwner, QWidget *pFrame)
    : pWidget(pFrame)
    , nLogicalDpi(pFrame->logicalDpiY())
    , pHelper(pOwner)
    , pNative(new Native(*this))
{
}

KPStyledFrameHelper::Private::~Private() = default;

void KPStyledFrameHelper::Private::setUp()
{
    bSetUp = true;
}

bool KPStyledFrameHelper::Private::handleMessage(void *, qintptr *)
{
    return false;
}

bool KPStyledFrameHelper::Private::Native::eventFilter(QObject *pWatched, QEvent *pEvent)
{
    if (pWatched != d.pWidget->windowHandle())
        return false;
    switch (pEvent->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(*static_cast<QMouseEvent *>(pEvent));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent *>(pEvent));
    case QEvent::MouseButtonRelease:
        bTitlePressed = false;
        return false;
    case QEvent::Leave:
    case QEvent::Hide:
        showCursor(nullptr);
        return false;
    default:
        return false;
    }
}

// Null also while a menu is open: the press that closes it must not start a resize.
const EdgeBehaviour *KPStyledFrameHelper::Private::Native::edgeAt(const QPoint &point) const
{
    if (QApplication::activePopupWidget())
        return nullptr;
    const int nDPI = DisplayScale::logicalDpi(d.pWidget);
    const FrameGeometry::Borders borders {
        DisplayScale::proportional(nDPI, s_nBorder), DisplayScale::proportional(nDPI, s_nCorner)};
    const bool bFills = d.pWidget->isMaximized() || d.pWidget->isFullScreen();
    const Hit hit = FrameGeometry::hitTest(point, d.pWidget->size(), borders, d.isResizable(bFills));
    const auto *pEdge = std::find_if(
        std::begin(s_edges), std::end(s_edges), [hit](const EdgeBehaviour &edge) { return edge.hit == hit; });
    return pEdge == std::end(s_edges) ? nullptr : pEdge;
}

// If the window system cannot resize windows, the widgets get the press as usual.
bool KPStyledFrameHelper::Private::Native::press(const QMouseEvent &event)
{
    bTitlePressed = false;
    if (event.button() != Qt::LeftButton)
        return false;
    const QPoint point = d.pWidget->mapFromGlobal(event.globalPosition().toPoint());
    if (const EdgeBehaviour *pEdge = edgeAt(point))
        return d.pWidget->windowHandle()->startSystemResize(pEdge->edges);
    // A double click goes on to the title bar, which maximizes the window.
    bTitlePressed = isWayland() && event.type() == QEvent::MouseButtonPress
        && !QApplication::activePopupWidget() && d.isTitleBar(point);
    pressPoint = point;
    return bTitlePressed;
}

bool KPStyledFrameHelper::Private::Native::move(const QMouseEvent &event)
{
    const QPoint point = d.pWidget->mapFromGlobal(event.globalPosition().toPoint());
    if (event.buttons() == Qt::NoButton) {
        bTitlePressed = false;
        showCursor(edgeAt(point));
    }
    if (bTitlePressed
        && (point - pressPoint).manhattanLength() >= QGuiApplication::styleHints()->startDragDistance())
        bTitlePressed = !d.pWidget->windowHandle()->startSystemMove();
    return bTitlePressed;
}

// The override cursor is used, because the widgets under the edge set the window's cursor when entered.
void KPStyledFrameHelper::Private::Native::showCursor(const EdgeBehaviour *pEdge)
{
    if (pEdge == pShown)
        return;
    if (pShown)
        QGuiApplication::restoreOverrideCursor();
    if (pEdge)
        QGuiApplication::setOverrideCursor(pEdge->cursor);
    pShown = pEdge;
}
