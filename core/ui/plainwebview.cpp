// SPDX-License-Identifier: MIT
#include "ui/plainwebview_p.h"

#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

/// A text browser that loads none of the pictures and style sheets that a text names.
class ClosedBrowser : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;
    QVariant loadResource(int nType, const QUrl &url) override
    {
        Q_UNUSED(nType)
        Q_UNUSED(url)
        return {};
    }
};

} // namespace

PlainWebView::PlainWebView(QWidget *pParent)
    : WebView(pParent)
    , m_pBrowser(new ClosedBrowser(this))
{
    auto *pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pBrowser);
    m_pBrowser->setOpenLinks(false);
    setFocusProxy(m_pBrowser);
    connect(m_pBrowser, &QTextBrowser::anchorClicked, this, [](const QUrl &url) { openOutside(url); });
}

void PlainWebView::load(const QUrl &)
{
    m_pBrowser->clear();
    finishLater(false);
}

void PlainWebView::setHtml(const QString &strHtml)
{
    m_pBrowser->setHtml(strHtml);
    finishLater(true);
}

void PlainWebView::setBackground(const QColor &color)
{
    QPalette palette = m_pBrowser->palette();
    palette.setColor(QPalette::Base, color);
    m_pBrowser->setPalette(palette);
}

// As with the engine, the signal comes from the event loop, so connecting after load() is early enough.
void PlainWebView::finishLater(bool bOk)
{
    QMetaObject::invokeMethod(
        this, [this, bOk] { emit loadFinished(bOk); }, Qt::QueuedConnection);
}
