// SPDX-License-Identifier: MIT
#include "stranger.h"
