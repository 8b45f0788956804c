// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <ui/webview.h>

/// Views of web pages. The module with the browser engine is loaded for the first one. GUI thread only.
///
///     WebView *pView = WebViewLoader::createView(WebAccess::Web, pPanel);
///     connect(pView, &WebView::loadFinished, this, &MyPlugin::onLoaded);
///     pView->load(QUrl(QStringLiteral("https://kelpa.example/")));
namespace WebViewLoader {

/// A new view in the layout of `pParent`, which owns it and gets a layout if it has none. Without the engine
/// it only shows HTML in a simple way, and load() fails.
CORE_EXPORT WebView *createView(WebAccess access, QWidget *pParent);

} // namespace WebViewLoader
