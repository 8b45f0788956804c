// SPDX-License-Identifier: MIT
#include <appearance/stylesheettokens.h>
#include <support/rows.h>

#include <QRandomGenerator>
#include <QtTest>

class tst_StyleSheetTokens : public QObject
{
    Q_OBJECT

private slots:
    void tokens_data()
    {
        const auto row = columns<QString, int, QString>("sheet", "dpi", "expected");
        row("truncated at 120", "width: $10px$; $13px$", 120, "width: 12px; 16px");
        row("the second mark of no token begins one", "$abc$12px$d", 192, "abc24pxd");
        row("the unit in front and twice", "$px1px2$", 96, "12px");
        row("a unit left over by taking one out", "$5ppxx$", 96, "0px");
        row("negative numbers are truncated towards zero", "$-3px$", 120, "-3px");
        row("the largest number does not overflow", "$2147483647px$", 192, "4294967294px");
    }
    void tokens()
    {
        QFETCH(QString, sheet);
        QFETCH(int, dpi);
        QTEST(StyleSheetTokens::resolve(sheet, dpi), "expected");
    }

    void sheetsOfRandomParts()
    {
        const QStringList parts = {"$", "$", "px", "1", "24", "-", "+", " ", "\n", "PX", ".5", "p", "x",
            "{a:", "$7px$", "$-2147483648px$", "2147483648"};
        QRandomGenerator random(7);
        for (int i = 0; i < 20'000; ++i) {
            QString strSheet;
            for (int n = random.bounded(12); n > 0; --n)
                strSheet += parts[random.bounded(parts.size())];
            const int nDpi = QList<int>({72, 96, 120, 143, 144, 192})[random.bounded(6)];
            QCOMPARE(std::pair(strSheet, StyleSheetTokens::resolve(strSheet, nDpi)),
                std::pair(strSheet, literally(strSheet, nDpi)));
        }
    }

    // Ten megabytes each: a look back for each mark would take hours here.
    void largeSheetsTakeNoTime()
    {
        QElapsedTimer timer;
        timer.start();
        for (const char *pPart : {"a { width: $10px$; }\n", "$", "$a", "10px", "px"}) {
            const QString strSheet = QString(pPart).repeated(10'000'000 / qsizetype(qstrlen(pPart)));
            QVERIFY(!StyleSheetTokens::resolve('$' + strSheet + '$', 192).isNull());
        }
        QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
    }

private:
    // The rule by itself, mark by mark.
    static QString literally(QString strSheet, int nDpi)
    {
        qsizetype nMark = strSheet.indexOf('$');
        while (nMark >= 0) {
            const qsizetype nClose = strSheet.indexOf('$', nMark + 1);
            QString strToken = strSheet.mid(nMark + 1, nClose - nMark - 1);
            if (nClose < 0 || !strToken.contains("px")) {
                strSheet.remove(nMark, 1);
            } else {
                const QString strSize =
                    QString::number(qint64(nDpi) * strToken.remove("px").toInt() / 96) + "px";
                strSheet.replace(nMark, nClose - nMark + 1, strSize);
                nMark += strSize.size();
            }
            nMark = strSheet.indexOf('$', nMark);
        }
        return strSheet;
    }
};

QTEST_APPLESS_MAIN(tst_StyleSheetTokens)
#include "tst_stylesheettokens.moc"
