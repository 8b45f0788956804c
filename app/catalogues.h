// SPDX-License-Identifier: MIT
#pragma once

/// Installs the catalogues of the language that the user chose, ours and Qt's own, and lays the program out
/// in the direction in which it is read. To be called once the settings are there and before any text is
/// made. A catalogue that is missing leaves its texts in English.
void installCatalogues();
