// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <array>

/// Facts of the project format that reader, writer and editor share. Lengths of texts are in UTF-16 units.
namespace StageFormat {

constexpr int nVersion = 1;
constexpr qint64 nMaxFileBytes = 64LL * 1024 * 1024;
constexpr int nMaxValues = 2'000'000; ///< JSON values in a file
constexpr int nMaxStageSize = 16384; ///< pixels
constexpr int nMaxFrameRate = 240; ///< frames per second
constexpr int nMaxScenes = 1000;
constexpr int nMaxElements = 20'000; ///< in all scenes together
constexpr int nMaxNameLength = 256;
constexpr int nMaxTextLength = 100'000;
constexpr int nMaxPathLength = 4096;
constexpr double dMaxCoordinate = 1'000'000; ///< stage pixels, to each side

struct NumberMember
{
    const char *pKey;
    double StageElement::*pField;
    double dMin;
    double dMax;
    bool bRequired;
};

struct ColorMember
{
    const char *pKey;
    QColor StageElement::*pField;
};

constexpr std::array<NumberMember, 7> numberMembers = {{
    {"x", &StageElement::x, -dMaxCoordinate, dMaxCoordinate, true},
    {"y", &StageElement::y, -dMaxCoordinate, dMaxCoordinate, true},
    {"width", &StageElement::width, 0, dMaxCoordinate, true},
    {"height", &StageElement::height, 0, dMaxCoordinate, true},
    {"rotation", &StageElement::rotation, -36000, 36000, false},
    {"opacity", &StageElement::opacity, 0, 1, false},
    {"strokeWidth", &StageElement::strokeWidth, 0, 1000, false},
}};
constexpr NumberMember fontSizeMember = {"fontSize", &StageElement::fontSize, 1, 2000, false};

constexpr std::array<ColorMember, 2> colorMembers = {{
    {"fill", &StageElement::fill},
    {"stroke", &StageElement::stroke},
}};

/// In the order of StageElement::Type.
constexpr std::array<const char *, 4> typeNames = {"rectangle", "ellipse", "text", "image"};
constexpr std::array<const char *, 3> alignNames = {"left", "center", "right"};

[[nodiscard]] inline QLatin1String typeName(StageElement::Type type)
{
    return QLatin1String(typeNames[static_cast<std::size_t>(type)]);
}

} // namespace StageFormat
