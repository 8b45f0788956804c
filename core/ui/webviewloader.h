// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <ui/webview.h>

/// The browser engine on demand: the program links none, and loads the module with it when the first view is
/// made. GUI thread only.
namespace WebViewLoader {

/// A new view, filling the layout of `pParent`, which owns it; a parent without a layout gets one. Without
/// the engine it is one that shows HTML in a simple way, and fails to load any URL of the web.
CORE_EXPORT WebView *createView(WebAccess access, QWidget *pParent);

} // namespace WebViewLoader
