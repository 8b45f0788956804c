// SPDX-License-Identifier: MIT
#include <displayscale.h>

#include <QGuiApplication>
#include <QtTest>

class tst_NoScreen : public QObject
{
    Q_OBJECT

private slots:
    void scaleIsOneHundredPercentWithoutAnyScreen()
    {
        QVERIFY(QGuiApplication::screens().isEmpty());
        QCOMPARE(DisplayScale::logicalDpi(), 96);
        QVERIFY(!DisplayScale::usesDoubleSizeImages(DisplayScale::logicalDpi()));
    }
};

QTEST_MAIN(tst_NoScreen)
#include "tst_noscreen.moc"
