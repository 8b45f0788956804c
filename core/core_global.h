// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#ifdef CORE_LIBRARY
#define CORE_EXPORT Q_DECL_EXPORT
#else
#define CORE_EXPORT Q_DECL_IMPORT
#endif
