// SPDX-License-Identifier: MIT
#include "appearance/stylesheettokens.h"

namespace {

constexpr QLatin1Char s_mark('$');
constexpr QLatin1String s_unit("px");

// The number in "12px". The unit may stand anywhere, and more than once.
int numberOf(QStringView token)
{
    QString strNumber;
    qsizetype nDone = 0;
    for (qsizetype nUnit = token.indexOf(s_unit); nUnit >= 0; nUnit = token.indexOf(s_unit, nDone)) {
        strNumber += token.sliced(nDone, nUnit - nDone);
        nDone = nUnit + s_unit.size();
    }
    strNumber += token.sliced(nDone);
    return strNumber.toInt();
}

} // namespace

QString StyleSheetTokens::resolve(const QString &strSheet, int nDPI)
{
    const QStringView sheet(strSheet);
    QString strResult;
    strResult.reserve(sheet.size());
    qsizetype nDone = 0;
    qsizetype nOpen = sheet.indexOf(s_mark);
    while (nOpen >= 0) {
        strResult += sheet.sliced(nDone, nOpen - nDone);
        nDone = nOpen + 1;
        const qsizetype nClose = sheet.indexOf(s_mark, nDone);
        const QStringView token = nClose < 0 ? QStringView() : sheet.sliced(nDone, nClose - nDone);
        if (!token.contains(s_unit)) {
            nOpen = nClose; // it may begin the next token
            continue;
        }
        // Not DisplayScale::proportional(): a number in a file may be as large as it likes.
        strResult += QStringLiteral("%1px").arg(static_cast<qint64>(nDPI) * numberOf(token) / 96);
        nDone = nClose + 1;
        nOpen = sheet.indexOf(s_mark, nDone);
    }
    strResult += sheet.sliced(nDone);
    return strResult;
}
