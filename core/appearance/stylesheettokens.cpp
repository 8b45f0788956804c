// SPDX-License-Identifier: MIT
#include "appearance/stylesheettokens.h"

namespace {

constexpr QLatin1Char s_mark('$');
constexpr QLatin1String s_unit("px");

// The number in a token such as "12px", whose first "px" is at `nUnit`. More of them may stand anywhere.
int numberOf(QStringView token, qsizetype nUnit)
{
    if (nUnit + s_unit.size() == token.size())
        return token.first(nUnit).toInt();
    QString strNumber;
    for (; nUnit >= 0; nUnit = token.indexOf(s_unit)) {
        strNumber += token.first(nUnit);
        token = token.sliced(nUnit + s_unit.size());
    }
    strNumber += token;
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
        const qsizetype nUnit = token.indexOf(s_unit);
        if (nUnit < 0) {
            nOpen = nClose; // its second "$" may begin the next token
            continue;
        }
        // DisplayScale::proportional() returns an int, which a number from a file may exceed.
        strResult += QString::number(static_cast<qint64>(nDPI) * numberOf(token, nUnit) / 96);
        strResult += s_unit;
        nDone = nClose + 1;
        nOpen = sheet.indexOf(s_mark, nDone);
    }
    strResult += sheet.sliced(nDone);
    return strResult;
}
