// SPDX-License-Identifier: MIT
#pragma once

class WebViewFactory;

/// The module with the browser engine, loaded on the first call. Null if it is not part of the program, or
/// cannot be loaded; the reason for that is logged once.
[[nodiscard]] WebViewFactory *webEngineFactory();
