// SPDX-License-Identifier: MIT
#include <support/coretest.h>
