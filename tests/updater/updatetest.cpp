// SPDX-License-Identifier: MIT
#include "updatetest.h"

#include "testserver.h"
