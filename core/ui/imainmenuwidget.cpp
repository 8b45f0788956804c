// SPDX-License-Identifier: MIT
#include "ui/imainmenuwidget.h"

#include "displayscale.h"
#include "iui.h"
#include "mainwindow.h"
#include "ui/iconlabel.h"
#include "ui/kpnotificationbar.h"
#include "ui/titlebargeometry.h"
#include "ui/titlebutton.h"
#include "ui/titletext.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStyleOptionTitleBar>
#include <QStylePainter>
#include <QToolButton>
#include <QToolTip>

constexpr int s_nIconSide = 16; // in pixels at a display scale of 100 percent

IMainMenuWidget::IMainMenuWidget(MainWindow *pParent, const QString &strTitle, const QIcon &icon)
    : QWidget(pParent)
    , m_pLayout(new QVBoxLayout(this))
    , m_pNotificationBar(new KPNotificationBar(this))
{
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(0);
    m_pLayout->addWidget(m_pNotificationBar);
    m_pNotificationBar->hide();
    updateWindowFilePath(QString());
    setWindowIcon(icon);
    setWindowTitle(strTitle);
    connect(pParent, &MainWindow::updateWindowFilePath, this, &IMainMenuWidget::updateWindowFilePath);
    connect(pParent, &MainWindow::updateModified, this, &IMainMenuWidget::updateModified);
    connect(pParent, &MainWindow::dpiChanged, this, &IMainMenuWidget::onDPIChanged);
}

void IMainMenuWidget::setMenuBar(QMenuBar *pMenuBar)
{
    m_pMenuBar = pMenuBar;
    // The desktop would show a native menu bar elsewhere, and the title bar would disappear with it.
    m_pMenuBar->setNativeMenuBar(false);
    m_pLayout->insertWidget(0, m_pMenuBar);
    if (auto *pMore = m_pMenuBar->findChild<QToolButton *>(QStringLiteral("qt_menubar_ext_button")))
        pMore->setAccessibleName(tr("More menus"));
    m_pIconLabel = new IconLabel(m_pMenuBar);
    m_pMenuBar->setCornerWidget(m_pIconLabel, Qt::TopLeftCorner);
    createButtons();
    m_pTitleText = new TitleText(m_pMenuBar, this);
    m_pTitleText->setGeometry(m_pMenuBar->rect());
    // With a hidden bar it appears later; show() now would polish it before the style is final.
    if (m_pMenuBar->isVisible())
        m_pTitleText->show();
    m_pMenuBar->installEventFilter(this);
    createShortcuts();
    onDPIChanged();
}

void IMainMenuWidget::createButtons()
{
    auto *pCorner = new QWidget(m_pMenuBar);
    auto *pLayout = new QHBoxLayout(pCorner);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    const auto add = [&](const char *pName, auto onClicked) {
        auto *pButton = new TitleButton(pCorner);
        pButton->setObjectName(QLatin1String(pName));
        pButton->setFlat(true);
        pButton->setFocusPolicy(Qt::NoFocus);
        connect(pButton, &QPushButton::clicked, this, onClicked);
        pLayout->addWidget(pButton);
    };
    // "minizeButton" is misspelled, but fixed: style sheets and plug-ins find the button by this name.
    add("minizeButton", [this] { showMinimized(); });
    add("maximizeButton", [this] { window()->isMaximized() ? showNormal() : showMaximized(); });
    add("closeButton", [this] { close(); });
    m_pMenuBar->setCornerWidget(pCorner, Qt::TopRightCorner);
}

// F10 opens the first menu and Alt+Space the window menu, as in a window with the system's frame.
void IMainMenuWidget::createShortcuts()
{
    auto *pMenus = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(pMenus, &QShortcut::activated, this, &IMainMenuWidget::openFirstMenu);
    auto *pWindowMenu = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Space), this);
    connect(pWindowMenu, &QShortcut::activated, this, [this] {
        openWindowMenu(m_pMenuBar->mapToGlobal(QPoint(m_pIconLabel->x(), m_pMenuBar->height())), true);
    });
}

void IMainMenuWidget::openFirstMenu()
{
    const auto actions = m_pMenuBar->actions();
    const auto it = std::find_if(actions.begin(), actions.end(),
        [](const QAction *pAction) { return pAction->isVisible() && pAction->isEnabled(); });
    if (it != actions.end())
        m_pMenuBar->setActiveAction(*it);
}

bool IMainMenuWidget::isTitleBarArea(int x, int y) const
{
    const QPoint point(x, y);
    if (!rect().contains(point))
        return false;
    // childAt() gives the innermost widget: over a corner widget that is not the menu bar.
    const auto *pMenuBar = qobject_cast<QMenuBar *>(childAt(point));
    return pMenuBar && !pMenuBar->actionAt(pMenuBar->mapFrom(this, point));
}

void IMainMenuWidget::updateWindowFilePath(const QString &fileName)
{
    const QString strProgram = IUi::getTitle();
    setWindowTitle(fileName.isEmpty() ? strProgram : QStringLiteral("%1 - %2").arg(fileName, strProgram));
    update();
}

void IMainMenuWidget::updateModified(bool bIsModified)
{
    setWindowModified(bIsModified);
    update();
}

// The system shows the title of the top-level window, for example in the task bar. In it, Qt replaces "[*]"
// with the modified mark and "[*][*]" with a literal "[*]", so those of the file name are doubled.
void IMainMenuWidget::changeEvent(QEvent *pEvent)
{
    if (pEvent->type() == QEvent::WindowTitleChange || pEvent->type() == QEvent::ModifiedChange) {
        const QString strMark = QStringLiteral("[*]");
        window()->setWindowTitle(TitleText::shownTitle(this).replace(strMark, strMark + strMark));
        if (m_pTitleText)
            m_pTitleText->update();
    }
    QWidget::changeEvent(pEvent);
}

void IMainMenuWidget::updateMaximized(bool bIsMaximized)
{
    dressButton("maximizeButton", bIsMaximized ? tr("Restore Down") : tr("Maximize"),
        bIsMaximized ? QStringLiteral("restore") : QStringLiteral("maximize"));
}

void IMainMenuWidget::dressButton(const char *pName, const QString &strToolTip, const QString &strIcon)
{
    auto *pButton = findChild<QPushButton *>(QLatin1String(pName));
    if (!pButton)
        return;
    const int nIcon = DisplayScale::wholeFactor(DisplayScale::logicalDpi(), s_nIconSide);
    pButton->setToolTip(strToolTip);
    pButton->setAccessibleName(strToolTip);
    pButton->setIcon(IUi::getIcon(strIcon, 2));
    pButton->setIconSize({nIcon, nIcon});
    if (m_pMenuBar)
        pButton->setFixedSize(menuTitleHeight(), menuTitleHeight());
}

void IMainMenuWidget::onDPIChanged()
{
    if (!m_pMenuBar)
        return;
    dressButton("minizeButton", tr("Minimize"), QStringLiteral("minimize"));
    updateMaximized(window()->isMaximized());
    dressButton("closeButton", tr("Close"), QStringLiteral("close"));
    m_pIconLabel->fit(IUi::getPixmap(QStringLiteral("icon"), 2, false), menuTitleHeight());
    if (!m_pNotificationBar->isHidden())
        m_pNotificationBar->updateIcons();
    // A menu bar that is not visible sizes its corner widget when it is shown.
    if (m_pMenuBar->isVisible())
        m_pMenuBar->cornerWidget(Qt::TopRightCorner)->adjustSize();
}

// The height for icon and buttons. Were they higher, the titles would not fill the row, and the lines that
// styles paint under the titles and under the rest of the row would not meet.
int IMainMenuWidget::menuTitleHeight() const
{
    QStyleOptionMenuItem option;
    option.initFrom(m_pMenuBar);
    option.text = QStringLiteral("X");
    const QSize text = m_pMenuBar->fontMetrics().size(Qt::TextShowMnemonic, option.text);
    return m_pMenuBar->style()->sizeFromContents(QStyle::CT_MenuBarItem, &option, text, m_pMenuBar).height();
}

QStyleOptionTitleBar IMainMenuWidget::titleBarOption() const
{
    QStyleOptionTitleBar option;
    option.initFrom(this);
    option.rect = QRect(0, 0, width(), style()->pixelMetric(QStyle::PM_TitleBarHeight, &option, this));
    option.titleBarState = static_cast<int>(window()->windowState());
    if (isActiveWindow())
        option.titleBarState |= QStyle::State_Active;
    option.text = fontMetrics().elidedText(TitleText::shownTitle(this), Qt::ElideRight, option.rect.width());
    option.icon = windowIcon();
    return option;
}

void IMainMenuWidget::paintEvent(QPaintEvent *)
{
    const QStyleOptionTitleBar option = titleBarOption();
    QStylePainter painter(this);
    // Under a translucent menu bar the strip is drawn without the title, because the bar shows it already.
    if (m_pMenuBar && m_pMenuBar->isVisible()) {
        QStyleOptionTitleBar untitled = option;
        untitled.text.clear();
        untitled.icon = QIcon();
        painter.setClipRect(m_pMenuBar->geometry());
        painter.drawComplexControl(QStyle::CC_TitleBar, untitled);
        painter.setClipRegion(QRegion(rect()).subtracted(m_pMenuBar->geometry()));
    }
    painter.drawComplexControl(QStyle::CC_TitleBar, option);
    drawTitle(painter, option);
    painter.setClipping(false);

    QStyleOption rest;
    rest.initFrom(this);
    rest.rect.setTop(option.rect.height());
    painter.drawPrimitive(QStyle::PE_Widget, rest);
}

void IMainMenuWidget::drawTitle(QStylePainter &painter, const QStyleOptionTitleBar &option) const
{
    const int nHeight = option.rect.height();
    const int nSide = nHeight - 3;
    const QPixmap pixmap = option.icon.pixmap(QSize(nSide, nSide));
    const int nTextX = qRound(pixmap.width() / pixmap.devicePixelRatio()) + 10;
    const auto place = [&](int nX, int nY, int nWidth, int nRectHeight) {
        return QStyle::visualRect(layoutDirection(), option.rect, QRect(nX, nY, nWidth, nRectHeight));
    };
    const int nAlign =
        int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) | Qt::AlignAbsolute);
    painter.drawItemPixmap(place(3, 3, nSide, nSide), nAlign, pixmap);
    painter.drawItemText(place(nTextX, 0, width() - 10 - nHeight, nHeight), nAlign, palette(), isEnabled(),
        option.text, QPalette::Text);
}

// The menu bar covers the row and would keep the mouse events that must drag the window.
bool IMainMenuWidget::eventFilter(QObject *pWatched, QEvent *pEvent)
{
    if (pWatched != m_pMenuBar)
        return QWidget::eventFilter(pWatched, pEvent);
    switch (pEvent->type()) {
    case QEvent::Resize:
        m_pTitleText->setGeometry(m_pMenuBar->rect());
        return false;
    case QEvent::StyleChange:
        // Qt 6.4.2's bar would measure the buttons now and so polish them before the style is final.
        if (!m_pMenuBar->testAttribute(Qt::WA_WState_Polished))
            return true;
        Q_FALLTHROUGH();
    case QEvent::Show:
    case QEvent::FontChange:
        onDPIChanged();
        return false;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        m_bDragging = false;
        return false;
    case QEvent::ToolTip: {
        const auto *pHelp = static_cast<QHelpEvent *>(pEvent);
        const QPoint point = m_pMenuBar->mapTo(this, pHelp->pos());
        if (!isTitleBarArea(point.x(), point.y()) || !m_pTitleText->isElided())
            return false;
        // A tool tip shows text that looks like HTML as HTML, and a file name may look so.
        const QString strTip = QStringLiteral("<p>%1</p>").arg(TitleText::shownTitle(this).toHtmlEscaped());
        QToolTip::showText(pHelp->globalPos(), strTip, m_pMenuBar);
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return passMouseEvent(static_cast<QMouseEvent *>(pEvent));
    default:
        return false;
    }
}

// The menu bar gets button events as well, because a click beside the menus closes them. During a drag it
// gets no moves, because it would open a menu that comes under the cursor.
bool IMainMenuWidget::passMouseEvent(QMouseEvent *pEvent)
{
    const QPoint point = m_pMenuBar->mapTo(this, pEvent->position().toPoint());
    const bool bEmpty = isTitleBarArea(point.x(), point.y());
    if (bEmpty && pEvent->type() == QEvent::MouseButtonPress)
        mousePressEvent(pEvent);
    else if (bEmpty && pEvent->type() == QEvent::MouseButtonDblClick)
        mouseDoubleClickEvent(pEvent);
    else if (pEvent->type() == QEvent::MouseButtonRelease)
        mouseReleaseEvent(pEvent);
    else if (pEvent->type() == QEvent::MouseMove)
        mouseMoveEvent(pEvent);
    return m_bDragging && pEvent->type() == QEvent::MouseMove;
}

void IMainMenuWidget::mousePressEvent(QMouseEvent *pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return;
    m_bDragging = true;
    m_bRestoredByDrag = false;
    m_pressPosition = pEvent->globalPosition().toPoint();
    m_windowPosition = window()->pos();
}

void IMainMenuWidget::mouseMoveEvent(QMouseEvent *pEvent)
{
    // If another window got the release, only the state of the buttons tells that the drag is over.
    m_bDragging = m_bDragging && pEvent->buttons().testFlag(Qt::LeftButton);
    if (!m_bDragging)
        return;
    const QPoint cursor = pEvent->globalPosition().toPoint();
    const QPoint delta = cursor - m_pressPosition;
    if (window()->isMaximized()) {
        if (TitleBarGeometry::restoresMaximized(delta)) {
            // The window keeps its maximized size until the window system has answered showNormal().
            const auto *pMainWindow = qobject_cast<const MainWindow *>(window());
            m_nRestoredWidth =
                (pMainWindow ? pMainWindow->normalGeometry() : window()->normalGeometry()).width();
            showNormal();
            m_bRestoredByDrag = true;
        }
        return;
    }
    if (m_bRestoredByDrag) {
        const QScreen *pScreen = window()->screen();
        m_windowPosition = TitleBarGeometry::restoredPosition(
            cursor, m_nRestoredWidth, pScreen ? pScreen->virtualGeometry() : window()->geometry());
        m_bRestoredByDrag = false;
    }
    window()->move(m_windowPosition + delta);
}

void IMainMenuWidget::mouseReleaseEvent(QMouseEvent *pEvent)
{
    if (pEvent->button() == Qt::LeftButton)
        m_bDragging = false;
}

void IMainMenuWidget::mouseDoubleClickEvent(QMouseEvent *pEvent)
{
    if (pEvent->button() == Qt::LeftButton)
        showMaximized();
}

void IMainMenuWidget::contextMenuEvent(QContextMenuEvent *pEvent)
{
    openWindowMenu(pEvent->globalPos(), false);
}

void IMainMenuWidget::openWindowMenu(const QPoint &globalPosition, bool bByKeyboard)
{
    auto *pMenu = new QMenu(this);
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    const bool bMaximized = window()->isMaximized();
    pMenu->addAction(tr("Restore"), this, &IMainMenuWidget::showNormal)->setEnabled(bMaximized);
    pMenu->addAction(tr("Minimize"), this, &IMainMenuWidget::showMinimized);
    pMenu->addAction(tr("Maximize"), this, &IMainMenuWidget::showMaximized)->setEnabled(!bMaximized);
    pMenu->addAction(tr("Close"), this, &IMainMenuWidget::close);
    pMenu->popup(globalPosition);
    if (bByKeyboard)
        pMenu->setActiveAction(pMenu->actions().at(bMaximized ? 0 : 1));
}
