// SPDX-License-Identifier: MIT
// The decisions of the frame. On Windows the test of the real window compares what the system does with them.
#include <ui/framegeometry.h>

#include <support/rows.h>

#include <QtTest>

using namespace FrameGeometry;

class tst_FrameGeometry : public QObject
{
    Q_OBJECT

private slots:
    // Every point of windows of any size, also of those that are smaller than their bands.
    void hits()
    {
        const Hit parts[3][3] = {{Hit::TopLeft, Hit::Top, Hit::TopRight},
            {Hit::Left, Hit::Client, Hit::Right}, {Hit::BottomLeft, Hit::Bottom, Hit::BottomRight}};
        const auto third = [](int n, int nLength, int nBand) {
            return n < nBand ? 0 : n < nLength - nBand ? 1 : 2;
        };
        for (const Borders bands : {Borders {4, 9}, Borders {3, 3}, Borders {2, 7}}) {
            for (const QSize &size : {QSize(40, 30), QSize(17, 5), QSize(7, 8)}) {
                for (const QPoint &point : pointsAround(size)) {
                    const int nRow = third(point.y(), size.height(), bands.nBorder);
                    const int nBand = nRow == 1 ? bands.nBorder : bands.nCorner;
                    QCOMPARE(hitTest(point, size, bands, true),
                        parts[nRow][third(point.x(), size.width(), nBand)]);
                    QCOMPARE(hitTest(point, size, bands, false), Hit::Client);
                }
            }
        }
    }

    void aCornerIsTwoBordersAndALine()
    {
        const auto [nBorder, nCorner] = borders(4, 3, 2);
        QCOMPARE(nBorder, 7);
        QCOMPARE(nCorner, 16);
    }

    void maximized_data()
    {
        const auto row = columns<Rect, Rect, Rect, Rect>("proposed", "workArea", "monitor", "expected");
        const Rect monitor {0, 0, 1280, 800};
        const Rect work {0, 0, 1280, 760};
        row("the whole monitor becomes the work area", monitor, work, monitor, work);
        row("wider alone becomes the work area", {-8, 0, 1288, 700}, work, monitor, work);
        row("higher alone becomes the work area", {100, 0, 1200, 800}, work, monitor, work);
        row("as large but elsewhere stays", {5, 7, 1285, 767}, work, monitor, {5, 7, 1285, 767});
        row("a monitor without a task bar keeps its whole", monitor, monitor, monitor, monitor);
        row("a monitor left of the first one has negative places", {-1288, -8, 8, 1032}, {-1280, 0, 0, 984},
            {-1280, 0, 0, 1024}, {-1280, 0, 0, 984});
        row("the whole of a monitor with a shifted work area is not kept", monitor, {0, 40, 1280, 840},
            monitor, {0, 40, 1280, 840});
    }
    void maximized()
    {
        QFETCH(const Rect, proposed);
        QFETCH(const Rect, workArea);
        QFETCH(const Rect, monitor);
        QTEST(maximizedRect(proposed, workArea, monitor), "expected");
    }

    void regionClipsAMaximizedWindowAndSquaresAPlainOne()
    {
        const Rect window {-8, -7, 1608, 968};
        const Rect client {1, 2, 1600, 960};
        for (const bool bComposition : {false, true})
            QCOMPARE(windowRegion(true, bComposition, window, client), Rect({9, 9, 1608, 967}));
        QCOMPARE(windowRegion(false, true, window, client), Rect());
        QCOMPARE(windowRegion(false, false, window, client), Rect({0, 0, 32767, 32767}));
    }

    // Each edge where the old and the new size end first; of equal ones that of the old size.
    void strips()
    {
        const int sides[] = {300, 400, 500};
        for (int i = 0; i < 81; ++i) {
            const QSize before(sides[i % 3], sides[i / 3 % 3]);
            const QSize after(sides[i / 9 % 3], sides[i / 27]);
            const QSize narrow = after.width() < before.width() ? after : before;
            const QSize low = after.height() < before.height() ? after : before;
            const auto [column, row] = edgeRepaint(before, after);
            QCOMPARE(column, Rect({narrow.width() - 1, 0, narrow.width(), narrow.height()}));
            QCOMPARE(row, Rect({0, low.height() - 1, low.width(), low.height()}));
        }
    }

    void points()
    {
        const auto logical = [](QPoint physical, double ratio) { return logicalPoint(physical, ratio); };
        QCOMPARE(logical({17, -3}, 1), QPoint(17, -3));
        QCOMPARE(logical({-3, 5}, 2), QPoint(-2, 3)); // halves go away from zero
        QCOMPARE(logical({1, -1}, 2.5), QPoint(0, 0));
        QCOMPARE(logical({8, -9}, 1.25), QPoint(6, -7));
    }

    void messagesCarrySignedHalves()
    {
        QCOMPARE(messagePoint(0x00070005), QPoint(5, 7));
        QCOMPARE(messagePoint(static_cast<qintptr>(0xfff9fffb)), QPoint(-5, -7));
        QCOMPARE(messagePoint(0x7fff8000), QPoint(-32768, 32767));
    }

private:
    static QList<QPoint> pointsAround(const QSize &size)
    {
        QList<QPoint> points;
        for (int i = 0; i < (size.width() + 4) * (size.height() + 4); ++i)
            points.append({i % (size.width() + 4) - 2, i / (size.width() + 4) - 2});
        return points;
    }
};

QTEST_APPLESS_MAIN(tst_FrameGeometry)
#include "tst_framegeometry.moc"
