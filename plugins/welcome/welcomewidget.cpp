// SPDX-License-Identifier: MIT
#include "welcomewidget.h"

#include "recentlist.h"
#include "welcomelog.h"
#include "welcomepage.h"

#include <displayscale.h>
#include <icore.h>
#include <mainwindow.h>
#include <ui/imainmdiarea.h>
#include <ui/webviewloader.h>

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

Q_LOGGING_CATEGORY(lcWelcome, "kelpa.welcome")

// Resources of a static library need Q_INIT_RESOURCE(), which Qt's documentation forbids in a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(welcome);
}

WelcomeWidget::WelcomeWidget(IMainMdiArea *pArea)
    : QWidget(pArea)
    , m_pArea(pArea)
{
    initResources();
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    new QVBoxLayout(this);
    layout()->setContentsMargins(0, 0, 0, 0);
    setGeometry(pArea->rect());
    pArea->installEventFilter(this);
    connect(ICore::getMainWindow(), &MainWindow::dpiChanged, this, &WelcomeWidget::updateLater);
    hide();
}

bool WelcomeWidget::eventFilter(QObject *pWatched, QEvent *pEvent)
{
    if (pWatched == m_pArea && pEvent->type() == QEvent::Resize)
        setGeometry(m_pArea->rect());
    return QWidget::eventFilter(pWatched, pEvent);
}

// Loading the engine takes long, so it is queued: the window's first picture reaches the screen before.
void WelcomeWidget::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::Window));
    if (m_bPainted)
        return;
    m_bPainted = true;
    qCDebug(lcWelcome, "Window painted");
    QMetaObject::invokeMethod(this, &WelcomeWidget::createView, Qt::QueuedConnection);
}

void WelcomeWidget::showEvent(QShowEvent *pEvent)
{
    QWidget::showEvent(pEvent);
    raise();
    takeFocus();
}

void WelcomeWidget::changeEvent(QEvent *pEvent)
{
    QWidget::changeEvent(pEvent);
    switch (pEvent->type()) {
    case QEvent::FontChange:
    case QEvent::LanguageChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        updateLater();
        break;
    default:
        break;
    }
}

// If a project was opened in the meantime, the view is not created before the widget is painted again.
void WelcomeWidget::createView()
{
    if (isHidden()) {
        m_bPainted = false;
        return;
    }
    m_pView = WebViewLoader::createView(WebAccess::OwnPages, this);
    m_pContent = m_pView;
    setFocusProxy(m_pContent);
    connect(m_pView, &WebView::loadFinished, this, &WelcomeWidget::onLoaded);
    connect(m_pView, &WebView::titleChanged, this, [](const QString &strTitle) {
        if (strTitle == WelcomePage::title())
            qCDebug(lcWelcome, "Page painted");
    });
    updatePage();
    m_pView->load(WelcomePage::url());
    takeFocus();
}

// Several changes in a row lead to one update of the page.
void WelcomeWidget::updateLater()
{
    if (m_bUpdating || !m_pView)
        return;
    m_bUpdating = true;
    QMetaObject::invokeMethod(this, &WelcomeWidget::updatePage, Qt::QueuedConnection);
}

void WelcomeWidget::updatePage()
{
    m_bUpdating = false;
    if (!m_pView)
        return;
    m_pView->setBackground(palette().color(QPalette::Window));
    m_pView->setZoomFactor(DisplayScale::percent(DisplayScale::logicalDpi(this)) / 100.0);
    m_pView->setPageData(WelcomePage::data(*this));
}

void WelcomeWidget::onLoaded(bool bOk)
{
    if (bOk || m_bRecovering)
        return;
    // Queued, since recover() may delete the view, which is emitting. One failure may be reported twice.
    m_bRecovering = true;
    QMetaObject::invokeMethod(this, &WelcomeWidget::recover, Qt::QueuedConnection);
}

void WelcomeWidget::recover()
{
    m_bRecovering = false;
    if (!m_pView)
        return;
    if (m_bRetried) {
        showList();
        return;
    }
    m_bRetried = true;
    qCWarning(lcWelcome, "The home page failed and is loaded again.");
    m_pView->load(WelcomePage::url());
}

void WelcomeWidget::showList()
{
    qCWarning(lcWelcome, "The home page failed again; the recent projects are listed without it.");
    m_pView->disconnect(this);
    delete m_pView;
    m_pView = nullptr;
    m_pContent = new RecentList(m_pArea, this);
    setFocusProxy(m_pContent);
    layout()->addWidget(m_pContent);
    takeFocus();
}

// When a window is shown, some button gets the focus, so take it from there. Menus and dialogs keep theirs.
void WelcomeWidget::takeFocus()
{
    const QWidget *pFocus = QApplication::focusWidget();
    if (m_pContent && isVisible() && !QApplication::activePopupWidget()
        && (!pFocus || pFocus->window() == window()))
        m_pContent->setFocus();
}
