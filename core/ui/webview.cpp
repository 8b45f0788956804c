// SPDX-License-Identifier: MIT
#include "ui/webview.h"

#include <QDesktopServices>

WebView::WebView(QWidget *pParent)
    : QWidget(pParent)
{
}

WebView::~WebView() = default;

void WebView::openOutside(const QUrl &url)
{
    if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"))
        QDesktopServices::openUrl(url);
}
