// SPDX-License-Identifier: MIT
#include <appearance/stylesheettokens.h>
#include <support/rows.h>

#include <QtTest>

class tst_StyleSheetTokens : public QObject
{
    Q_OBJECT

private slots:
    void tokens_data()
    {
        const auto row = columns<QString, int, QString>("sheet", "dpi", "expected");
        row("nothing gives nothing", "", 96, "");
        row("text without marks stays", "a { margin: 3px }", 192, "a { margin: 3px }");
        row("doubled at 192", "width: $10px$;", 192, "width: 20px;");
        row("one and a half at 144", "$12px$", 144, "18px");
        row("truncated at 120", "$13px$", 120, "16px");
        row("truncated at 72", "$1px$", 72, "0px");
        row("two that touch", "$1px$$2px$", 192, "2px4px");
        row("three in one line", "$1px$ $2px$ $3px$", 96, "1px 2px 3px");
        row("a mark alone is dropped", "$", 96, "");
        row("a mark at the end is dropped", "a$", 96, "a");
        row("no unit: only the marks go", "$abc$", 96, "abc");
        row("the second mark of no token begins one", "$abc$12px$d", 192, "abc24pxd");
        row("an empty token", "$$", 96, "");
        row("three marks in front of a number", "$$$5px$", 96, "5px");
        row("the unit outside does not count", "$5$px", 96, "5px");
        row("a token that is not closed", "a $12px b", 96, "a 12px b");
        row("over line ends", "$\n12px\n$", 96, "12px");
        row("a fraction is no whole number", "$1.5px$", 96, "0px");
        row("words are no number", "$12px solid$", 96, "0px");
        row("the unit alone", "$px$", 96, "0px");
        row("the unit in front and twice", "$px1px2$", 96, "12px");
        row("a unit left over by taking one out", "$5ppxx$", 96, "0px");
        row("upper case is no unit", "$12PX$", 96, "12PX");
        row("a sign", "$+7px$", 96, "7px");
        row("negative numbers are truncated towards zero", "$-3px$", 120, "-3px");
        row("the largest number does not overflow", "$2147483647px$", 192, "4294967294px");
        row("the smallest number does not overflow", "$-2147483648px$", 192, "-4294967296px");
        row("beyond the largest number", "$2147483648px$", 96, "0px");
    }

    void tokens()
    {
        QFETCH(QString, sheet);
        QFETCH(int, dpi);
        QTEST(StyleSheetTokens::resolve(sheet, dpi), "expected");
    }

    void tenMegabytes_data()
    {
        // expected of one unit; "*" for the whole
        const auto row = columns<QString, QString, QString>("unit", "prefix", "expected");
        row("of honest rules", "a { width: $10px$; }\n", "", "a { width: 20px; }\n");
        row("of marks only", "$", "", "");
        row("of marks without a unit", "$a", "", "a");
        row("of one token that is never closed", "10px", "$", "10px");
    }

    // A look back for each mark would take hours here.
    void tenMegabytes()
    {
        QFETCH(QString, unit);
        QFETCH(QString, prefix);
        QFETCH(QString, expected);
        const qsizetype nUnits = 10'000'000 / unit.size();
        QElapsedTimer timer;
        timer.start();
        const QString strResult = StyleSheetTokens::resolve(prefix + unit.repeated(nUnits), 192);
        QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(strResult == expected.repeated(nUnits));
    }

    void tenMegabytesOfUnitsInOneToken()
    {
        const QString strSheet = "$" + QString("px").repeated(5'000'000) + "7$";
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(StyleSheetTokens::resolve(strSheet, 192), "14px");
        QVERIFY(timer.elapsed() < 20'000);
    }
};

QTEST_APPLESS_MAIN(tst_StyleSheetTokens)
#include "tst_stylesheettokens.moc"
