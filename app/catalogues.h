// SPDX-License-Identifier: MIT
#pragma once

/// Installs the catalogs of the language that the user chose, ours and Qt's own, and gives the program the
/// layout direction of that language. Call it on the GUI thread, once the settings are open and before any
/// text is made. A text without a translation stays in English.
void installCatalogues();
