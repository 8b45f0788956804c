// SPDX-License-Identifier: MIT
// Where the program is built without its web parts.
#include "ui/webengine_p.h"

WebViewFactory *webEngineFactory()
{
    return nullptr;
}
