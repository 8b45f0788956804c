// SPDX-License-Identifier: MIT
#include <ui/framegeometry.h>

#include "framerows.h"

#include <QtTest>

using namespace FrameGeometry;
using namespace FrameRows;

class tst_FrameGeometry : public QObject
{
    Q_OBJECT

private slots:
    void hits_data() { addRows(s_hits); }
    void hits()
    {
        const HitRow &r = row(s_hits);
        const Borders all[] = {borders(4, 4, 1), borders(0, 4, 1), borders(0, 1, 0), {16, 64}, {4, 4}};
        for (const Borders bands : all) {
            for (const QSize &size : {QSize(640, 480), QSize(1921, 1083)}) {
                if (bands.nCorner == bands.nBorder && (r.x == At::BorderNext) && r.y == At::First)
                    continue; // such a corner reaches no further
                const QPoint point(
                    coordinate(r.x, size.width(), bands), coordinate(r.y, size.height(), bands));
                QCOMPARE(hitTest(point, size, bands, true), r.hit);
                QCOMPARE(hitTest(point, size, bands, false), Hit::Client);
            }
        }
    }

    void overlappingBandsGoToTheTopAndTheLeft()
    {
        const Borders bands {8, 17};
        QCOMPARE(hitTest({10, 4}, {20, 10}, bands, true), Hit::TopLeft);
        QCOMPARE(hitTest({10, 8}, {20, 10}, bands, true), Hit::BottomLeft);
        QCOMPARE(hitTest({17, 9}, {20, 10}, bands, true), Hit::BottomRight);
        QCOMPARE(hitTest({5, 40}, {12, 80}, bands, true), Hit::Left);
    }

    void aCornerIsTwoBordersAndALine()
    {
        const auto [nBorder, nCorner] = borders(4, 3, 2);
        QCOMPARE(nBorder, 7);
        QCOMPARE(nCorner, 16);
    }

    void maximized_data() { addRows(s_maximized); }
    void maximized()
    {
        const MaximizedRow &r = row(s_maximized);
        QCOMPARE(maximizedRect(r.proposed, r.workArea, r.monitor), r.expected);
    }

    void regionClipsAMaximizedWindowAndSquaresAPlainOne()
    {
        const Rect window {-8, -8, 1608, 968};
        const Rect client {0, 0, 1600, 960};
        for (const bool bComposition : {false, true})
            QCOMPARE(windowRegion(true, bComposition, window, client), Rect({8, 8, 1608, 968}));
        QCOMPARE(windowRegion(false, true, window, client), Rect());
        QCOMPARE(windowRegion(false, false, window, client), Rect({0, 0, 32767, 32767}));
    }

    void strips_data() { addRows(s_strips); }
    void strips()
    {
        const StripsRow &r = row(s_strips);
        const auto [column, line] = edgeRepaint(r.oldSize, r.newSize);
        QCOMPARE(column, r.column);
        QCOMPARE(line, r.row);
    }

    void points_data() { addRows(s_points); }
    void points()
    {
        const PointRow &r = row(s_points);
        QCOMPARE(logicalPoint(r.physical, r.ratio), r.logical);
    }

    void messagesCarrySignedHalves()
    {
        QCOMPARE(messagePoint(0x00070005), QPoint(5, 7));
        QCOMPARE(messagePoint(static_cast<qintptr>(0xfff9fffb)), QPoint(-5, -7));
        QCOMPARE(messagePoint(0x7fff8000), QPoint(-32768, 32767));
    }
};

QTEST_APPLESS_MAIN(tst_FrameGeometry)
#include "tst_framegeometry.moc"
