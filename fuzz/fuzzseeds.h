// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

/// What the driver mutates, and what it puts in. Each target has its own. The first byte of an input chooses
/// the way into the target and is never changed.
struct FuzzSeeds
{
    std::span<const std::string_view> inputs;
    std::span<const std::string_view> words;
};
extern const FuzzSeeds fuzzSeeds;
