// SPDX-License-Identifier: MIT
#include "ui/webviewloader.h"

#include "ui/plainwebview_p.h"
#include "ui/webengine_p.h"

#include <QVBoxLayout>

WebView *WebViewLoader::createView(WebAccess access, QWidget *pParent)
{
    WebViewFactory *pFactory = webEngineFactory();
    WebView *pView = pFactory ? pFactory->create(access, pParent) : nullptr;
    if (!pView)
        pView = new PlainWebView(pParent);
    if (!pParent->layout())
        new QVBoxLayout(pParent);
    pParent->layout()->setContentsMargins(0, 0, 0, 0);
    pParent->layout()->addWidget(pView);
    return pView;
}
