// SPDX-License-Identifier: MIT
#include "engineview.h"

#include "enginepage.h"

#include <QVBoxLayout>
#include <QWebEngineView>

EngineView::EngineView(WebAccess access, QWidget *pParent)
    : WebView(pParent)
    , m_pView(new QWebEngineView(this))
{
    auto *pProfile = new QWebEngineProfile(this); // without a name it is off the record
    pProfile->setUrlRequestInterceptor(new RequestFilter(access, pProfile));
    auto *pPage = new EnginePage(access, pProfile, m_pView);
    m_pView->setPage(pPage);
    m_pView->setContextMenuPolicy(Qt::NoContextMenu);
    m_pView->setAcceptDrops(false);
    auto *pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pView);
    setFocusProxy(m_pView);
    connect(pPage, &EnginePage::linkActivated, this, [](const QUrl &url) { openOutside(url); });
    connect(pPage, &QWebEnginePage::loadFinished, this, &WebView::loadFinished);
    connect(pPage, &QWebEnginePage::renderProcessTerminated, this, [this] { emit loadFinished(false); });
}

// The profile must outlive its pages.
EngineView::~EngineView()
{
    delete m_pView;
}

void EngineView::load(const QUrl &url)
{
    m_pView->load(url);
}

void EngineView::setHtml(const QString &strHtml)
{
    m_pView->setHtml(strHtml);
}

void EngineView::setZoomFactor(double fFactor)
{
    m_pView->setZoomFactor(fFactor);
}

WebView *EngineFactory::create(WebAccess access, QWidget *pParent)
{
    return new EngineView(access, pParent);
}
