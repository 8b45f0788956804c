// SPDX-License-Identifier: MIT
#include <ui/titlebargeometry.h>

#include <QStyle>
#include <support/rows.h>

#include <QtTest>

class tst_TitleBarGeometry : public QObject
{
    Q_OBJECT

private slots:
    void restoredPosition()
    {
        const auto at = [](const QPoint &cursor, int nWidth) {
            return TitleBarGeometry::restoredPosition(cursor, nWidth, QRect(-1000, -50, 2000, 1000));
        };
        QCOMPARE(at({0, 300}, 401), QPoint(-200, -50)); // centred under the cursor at the top
        QCOMPARE(at({-950, 0}, 400), QPoint(-1000, -50)); // not left or right of the desktop
        QCOMPARE(at({950, 0}, 400), QPoint(600, -50));
        QCOMPARE(at({0, 0}, 2100), QPoint(-1100, -50)); // too wide: the right edge stays inside
    }

    void placeOfTheTitle_data()
    {
        const auto row = columns<int, bool, int, QRect>("menuEnd", "rightToLeft", "textWidth", "place");
        row("in the middle of the row", 200, false, 100, QRect(450, 0, 100, 20));
        row("pushed aside by many menus", 500, false, 100, QRect(500, 0, 100, 20));
        row("pushed aside by the buttons", 50, false, 840, QRect(60, 0, 840, 20));
        row("too long: all that is free", 300, false, 999, QRect(300, 0, 600, 20));
        row("no room at all", 900, false, 100, QRect());
        row("right to left, in the middle", 200, true, 100, QRect(450, 0, 100, 20));
        row("right to left, too long", 300, true, 999, QRect(100, 0, 600, 20));
    }
    void placeOfTheTitle()
    {
        QFETCH(int, menuEnd);
        QFETCH(bool, rightToLeft);
        QFETCH(int, textWidth);
        const QRect row(0, 0, 1000, 20);
        const auto direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
        const auto place = [&](int nX, int nWidth) {
            return QStyle::visualRect(direction, row, QRect(nX, 0, nWidth, 20));
        };
        const QRect stretch = TitleBarGeometry::emptyStretch(
            row, {place(0, 50), place(50, menuEnd - 50), QRect()}, place(900, 100), direction);
        QTEST(TitleBarGeometry::titleRect(row, stretch, textWidth), "place");
    }
};

QTEST_APPLESS_MAIN(tst_TitleBarGeometry)
#include "tst_titlebargeometry.moc"
