// SPDX-License-Identifier: MIT
#include "foreign.h"
