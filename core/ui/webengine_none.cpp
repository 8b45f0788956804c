// SPDX-License-Identifier: MIT
// Used when the program is built without its web parts.
#include "ui/webengine_p.h"

WebViewFactory *webEngineFactory()
{
    return nullptr;
}
