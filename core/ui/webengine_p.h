// SPDX-License-Identifier: MIT
#pragma once

class WebViewFactory;

/// The module with the browser engine, loaded on the first call; null where there is none. Why is logged
/// once.
[[nodiscard]] WebViewFactory *webEngineFactory();
