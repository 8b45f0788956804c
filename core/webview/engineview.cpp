// SPDX-License-Identifier: MIT
#include "engineview.h"

#include "enginepage.h"

#include <QJsonDocument>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QVBoxLayout>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

EngineView::EngineView(WebAccess access, QWidget *pParent)
    : WebView(pParent)
    , m_pView(new QWebEngineView(this))
{
    auto *pProfile = new QWebEngineProfile(this); // without a name it is off the record
    auto *pFilter = new RequestFilter(access, pProfile);
    pProfile->setUrlRequestInterceptor(pFilter);
    connect(pFilter, &RequestFilter::requested, this, &WebView::requested);
    auto *pPage = new EnginePage(access, pProfile, m_pView);
    m_pView->setPage(pPage);
    m_pView->setContextMenuPolicy(Qt::NoContextMenu);
    m_pView->setAcceptDrops(false);
    auto *pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pView);
    setFocusProxy(m_pView);
    connect(pPage, &EnginePage::linkActivated, this, [](const QUrl &url) { openOutside(url); });
    connect(pPage, &QWebEnginePage::titleChanged, this, &WebView::titleChanged);
    connect(pPage, &QWebEnginePage::loadFinished, this, [this, pPage](bool bOk) {
        // What the page itself wanted and must not is no failure of what the program loaded.
        if (bOk || m_bLoading || !pPage->isHeldBack())
            onLoaded(bOk);
    });
    connect(pPage, &QWebEnginePage::renderProcessTerminated, this, [this] { onLoaded(false); });
}

// The profile must outlive its pages.
EngineView::~EngineView()
{
    delete m_pView;
}

void EngineView::load(const QUrl &url)
{
    beginLoading();
    m_pView->load(url);
}

void EngineView::setHtml(const QString &strHtml)
{
    beginLoading();
    m_pView->setHtml(strHtml);
}

void EngineView::beginLoading()
{
    m_bLoading = true;
    m_bLoaded = false;
}

void EngineView::setZoomFactor(double fFactor)
{
    m_fZoom = fFactor;
    m_pView->setZoomFactor(fFactor);
}

void EngineView::onLoaded(bool bOk)
{
    m_bLoaded = bOk;
    if (bOk) {
        m_pView->setZoomFactor(m_fZoom); // a page after a dead process begins anew
        if (m_bDataCameLate)
            announcePageData();
    }
    m_bDataCameLate = false;
    m_bLoading = false;
    emit loadFinished(bOk);
}

void EngineView::setPageData(const QJsonObject &pageData)
{
    const QString strSource =
        QStringLiteral("window.pageData = %1;")
            .arg(QString::fromUtf8(QJsonDocument(pageData).toJson(QJsonDocument::Compact)));
    QWebEngineScript script;
    script.setSourceCode(strSource);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    QWebEnginePage *pPage = m_pView->page();
    pPage->scripts().clear();
    pPage->scripts().insert(script);
    m_strPageData = strSource;
    if (m_bLoaded)
        announcePageData();
    else
        m_bDataCameLate = m_bLoading; // the document may be there already
}

void EngineView::announcePageData()
{
    m_pView->page()->runJavaScript(
        m_strPageData + QStringLiteral("window.dispatchEvent(new Event('pagedata'));"));
}

void EngineView::setBackground(const QColor &color)
{
    m_pView->page()->setBackgroundColor(color);
}

EngineFactory::EngineFactory()
{
    const QOpenGLContext *pContext = QOpenGLContext::globalShareContext();
    if (!pContext || !pContext->isValid())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

WebView *EngineFactory::create(WebAccess access, QWidget *pParent)
{
    return new EngineView(access, pParent);
}
