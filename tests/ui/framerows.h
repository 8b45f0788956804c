// SPDX-License-Identifier: MIT
// The frame's behaviour as tables: read by the test of the pure decisions and, on Windows, by the test that
// sends real messages to a real window.
#pragma once

#include <ui/framegeometry.h>

#include <QTest>

namespace FrameRows {

using FrameGeometry::Borders;
using FrameGeometry::Hit;
using FrameGeometry::Rect;

/// Positions along one side of a window, by what lies there.
enum class At {
    Outside,
    First,
    BorderLast,
    BorderNext,
    CornerLast,
    CornerNext,
    Middle,
    FarCornerNext,
    FarCornerFirst,
    FarBorderNext,
    FarBorderFirst,
    Last
};

inline int coordinate(At at, int nLength, Borders borders)
{
    const auto [nBorder, nCorner] = borders;
    const int places[] = {-1, 0, nBorder - 1, nBorder, nCorner - 1, nCorner, nLength / 2,
        nLength - nCorner - 1, nLength - nCorner, nLength - nBorder - 1, nLength - nBorder, nLength - 1};
    return places[static_cast<int>(at)];
}

struct HitRow
{
    const char *pName;
    At x;
    At y;
    Hit hit;
};

// clang-format off
inline constexpr HitRow s_hits[] = {
    {"the first pixel is the top left corner", At::First, At::First, Hit::TopLeft},
    {"above the window counts as its top", At::Middle, At::Outside, Hit::Top},
    {"left of the window counts as its left edge", At::Outside, At::Middle, Hit::Left},
    {"the top left corner reaches further than the border", At::BorderNext, At::First, Hit::TopLeft},
    {"the top left corner ends with its last pixel", At::CornerLast, At::BorderLast, Hit::TopLeft},
    {"beside the top left corner is the top", At::CornerNext, At::BorderLast, Hit::Top},
    {"the middle of the first row is the top", At::Middle, At::First, Hit::Top},
    {"before the top right corner is the top", At::FarCornerNext, At::First, Hit::Top},
    {"the top right corner begins its width before the end", At::FarCornerFirst, At::BorderLast, Hit::TopRight},
    {"the last pixel of the first row is the top right corner", At::Last, At::First, Hit::TopRight},
    {"the first pixel of the last row is the bottom left corner", At::First, At::Last, Hit::BottomLeft},
    {"the bottom left corner ends with its last pixel", At::CornerLast, At::FarBorderFirst, Hit::BottomLeft},
    {"beside the bottom left corner is the bottom", At::CornerNext, At::FarBorderFirst, Hit::Bottom},
    {"the middle of the last row is the bottom", At::Middle, At::Last, Hit::Bottom},
    {"before the bottom right corner is the bottom", At::FarCornerNext, At::Last, Hit::Bottom},
    {"the bottom right corner begins its width before the end", At::FarCornerFirst, At::FarBorderFirst, Hit::BottomRight},
    {"the last pixel is the bottom right corner", At::Last, At::Last, Hit::BottomRight},
    {"below the top band the left edge has no corner", At::First, At::BorderNext, Hit::Left},
    {"the left edge ends with the border", At::BorderLast, At::Middle, Hit::Left},
    {"above the bottom band the left edge has no corner", At::First, At::FarBorderNext, Hit::Left},
    {"below the top band the right edge has no corner", At::Last, At::BorderNext, Hit::Right},
    {"the right edge begins with the border", At::FarBorderFirst, At::Middle, Hit::Right},
    {"the pixel inside all top bands is content", At::BorderNext, At::BorderNext, Hit::Client},
    {"the pixel inside all bottom bands is content", At::FarBorderNext, At::FarBorderNext, Hit::Client},
    {"the middle is content", At::Middle, At::Middle, Hit::Client},
};

struct MaximizedRow
{
    const char *pName;
    Rect proposed;
    Rect workArea;
    Rect monitor;
    Rect expected;
};

/// The monitor of the first rows is the display that the tests for Windows run on.
inline constexpr Rect s_monitor {0, 0, 1280, 800};
inline constexpr Rect s_workArea {0, 0, 1280, 760};

inline constexpr MaximizedRow s_maximized[] = {
    {"the work area stays", s_workArea, s_workArea, s_monitor, s_workArea},
    {"the whole monitor becomes the work area", s_monitor, s_workArea, s_monitor, s_workArea},
    {"frames hanging over every edge are cut", {-8, -8, 1288, 768}, s_workArea, s_monitor, s_workArea},
    {"wider alone becomes the work area", {-8, 0, 1288, 700}, s_workArea, s_monitor, s_workArea},
    {"higher alone becomes the work area", {100, 0, 1200, 800}, s_workArea, s_monitor, s_workArea},
    {"smaller in both stays", {10, 20, 1200, 700}, s_workArea, s_monitor, {10, 20, 1200, 700}},
    {"as large but elsewhere stays", {5, 7, 1285, 767}, s_workArea, s_monitor, {5, 7, 1285, 767}},
    {"a monitor without a task bar keeps its whole", s_monitor, s_monitor, s_monitor, s_monitor},
    {"a monitor left of the first one has negative places", {-1288, -8, 8, 1032}, {-1280, 0, 0, 984},
        {-1280, 0, 0, 1024}, {-1280, 0, 0, 984}},
    {"the whole of a monitor with a shifted work area as large is not kept", s_monitor, {0, 40, 1280, 840},
        s_monitor, {0, 40, 1280, 840}},
};

struct StripsRow
{
    const char *pName;
    QSize oldSize;
    QSize newSize;
    Rect column;
    Rect row;
};

inline constexpr StripsRow s_strips[] = {
    {"growing repaints the old edges", {400, 300}, {500, 350}, {399, 0, 400, 300}, {0, 299, 400, 300}},
    {"shrinking repaints the new edges", {500, 350}, {400, 300}, {399, 0, 400, 300}, {0, 299, 400, 300}},
    {"wider and lower takes each edge from its own size", {400, 350}, {500, 300}, {399, 0, 400, 350},
        {0, 299, 500, 300}},
    {"narrower and higher takes each edge from its own size", {500, 300}, {400, 350}, {399, 0, 400, 350},
        {0, 299, 500, 300}},
    {"another height alone leaves the column where it was", {400, 300}, {400, 350}, {399, 0, 400, 300},
        {0, 299, 400, 300}},
};

struct PointRow
{
    const char *pName;
    QPoint physical;
    double ratio;
    QPoint logical;
};

inline constexpr PointRow s_points[] = {
    {"without scaling a point stays", {17, -3}, 1.0, {17, -3}},
    {"halves round up to the right and down", {3, 5}, 2.0, {2, 3}},
    {"negative halves round away from zero", {-3, -1}, 2.0, {-2, -1}},
    {"less than half rounds to zero", {1, -1}, 2.5, {0, 0}},
    {"at one and a half the last pixel rounds down", {2, 5}, 1.5, {1, 3}},
    {"at one and a half negative points mirror", {-2, -5}, 1.5, {-1, -3}},
    {"at one and a quarter a pixel may come twice", {8, 9}, 1.25, {6, 7}},
};
// clang-format on

/// One data row for each row of a table that `wanted` accepts, read back with row().
template <typename Row, size_t N, typename Wanted>
void addRows(const Row (&rows)[N], Wanted wanted)
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < N; ++i) {
        if (wanted(rows[i]))
            QTest::newRow(rows[i].pName) << static_cast<int>(i);
    }
}

template <typename Row, size_t N>
void addRows(const Row (&rows)[N])
{
    addRows(rows, [](const Row &) { return true; });
}

template <typename Row, size_t N>
const Row &row(const Row (&rows)[N])
{
    QFETCH(int, index);
    return rows[index];
}

} // namespace FrameRows
