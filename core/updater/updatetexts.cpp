// SPDX-License-Identifier: MIT
#include "updater/updatetexts.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

// Gives the texts the translation context of the download window, which shows them.
struct Downloader
{
    Q_DECLARE_TR_FUNCTIONS(Downloader)
};

// On Windows these names open a device in every folder, also with a suffix.
bool isDeviceName(const QString &strName)
{
    static const QRegularExpression s_devices(
        QStringLiteral("^(con|prn|aux|nul|clock\\$|conin\\$|conout\\$|(com|lpt)[0-9\u00B9\u00B2\u00B3])"
                       "[ ]*(\\..*)?$"),
        QRegularExpression::CaseInsensitiveOption);
    return s_devices.match(strName).hasMatch();
}

// Control and format characters can make a name look like another one.
bool isForbidden(QChar c)
{
    static const QString s_reserved = QStringLiteral("/\\:*?\"<>|");
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return s_reserved.contains(c);
    }
}

} // namespace

bool UpdateTexts::isNewer(const QString &strX, const QString &strY)
{
    const QStringList x = strX.split(QLatin1Char('.'));
    const QStringList y = strY.split(QLatin1Char('.'));
    for (qsizetype i = 0; i < qMin(x.size(), y.size()); ++i) {
        const int nX = x.at(i).toInt();
        const int nY = y.at(i).toInt();
        if (nX != nY)
            return nX > nY;
    }
    return x.size() > y.size();
}

QString UpdateTexts::size(qint64 nBytes)
{
    if (nBytes < 1024)
        return Downloader::tr("%1 bytes").arg(nBytes);
    if (nBytes < 1024 * 1024)
        return Downloader::tr("%1 KB").arg(nBytes >> 10);
    return Downloader::tr("%1 MB").arg(nBytes >> 20);
}

QString UpdateTexts::duration(double fSeconds)
{
    const auto rounded = [fSeconds](double fUnit) {
        return static_cast<qint64>(std::floor(fSeconds / fUnit + 0.5));
    };
    if (fSeconds > 7200) {
        const qint64 n = rounded(3600);
        return n > 1 ? Downloader::tr("About %1 hours").arg(n) : Downloader::tr("About one hour");
    }
    if (fSeconds > 60) {
        const qint64 n = rounded(60);
        return n > 1 ? Downloader::tr("About %1 minutes").arg(n) : Downloader::tr("About 1 minute");
    }
    const qint64 n = rounded(1);
    return n > 1 ? Downloader::tr("%1 seconds").arg(n) : Downloader::tr("1 second");
}

double UpdateTexts::estimatedSeconds(qint64 nReceived, qint64 nTotal, qint64 nElapsedSeconds)
{
    if (nElapsedSeconds == 0 || nReceived < 1)
        return -1;
    const qint64 nSpeed = qMax<qint64>(1, nReceived / qMax<qint64>(1, nElapsedSeconds));
    const qint64 nSeconds = nTotal / nSpeed;
    return static_cast<double>(nSeconds);
}

QString UpdateTexts::safeFileName(const QString &strName)
{
    constexpr int nLongest = 200; // bytes; file systems allow 255, and ".part" or a number is added
    const bool bBad = strName.isEmpty() || strName.toUtf8().size() > nLongest || !strName.isValidUtf16()
        || strName.startsWith(QLatin1Char('.')) || strName.endsWith(QLatin1Char('.'))
        || strName != strName.trimmed() || isDeviceName(strName)
        || std::any_of(strName.cbegin(), strName.cend(), isForbidden);
    return bBad ? QStringLiteral("%1_Update.bin").arg(QStringLiteral("Kelpa")) : strName;
}

QString UpdateTexts::fileNameOf(const QString &strUrl)
{
    const QString strAddress = strUrl.section(QLatin1Char('#'), 0, 0).section(QLatin1Char('?'), 0, 0);
    return strAddress.section(QLatin1Char('/'), -1);
}

QString UpdateTexts::shortened(const QString &strText, int nLongest)
{
    return strText.size() <= nLongest ? strText : strText.left(nLongest) + QStringLiteral("...");
}

QString UpdateTexts::shown(const QUrl &url)
{
    return shortened(url.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemoveQuery), LongestLog);
}

bool UpdateTexts::isWebAddress(const QString &strText)
{
    return strText.startsWith(QLatin1String("http://"), Qt::CaseInsensitive)
        || strText.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
}

bool UpdateTexts::isWebUrl(const QUrl &url)
{
    return !url.host().isEmpty() && isWebAddress(url.toString());
}

QString UpdateTexts::redirectObjection(const QUrl &from, const QUrl &to, int nFollowed)
{
    if (nFollowed >= MostRedirects)
        return Downloader::tr("more than %1 redirects").arg(MostRedirects);
    if (!isWebUrl(to))
        return Downloader::tr("a redirect to \"%1\", which is no address of the web").arg(shown(to));
    if (from.scheme() == QLatin1String("https") && to.scheme() != QLatin1String("https"))
        return Downloader::tr("a redirect from a secure address to \"%1\", which is not").arg(shown(to));
    return {};
}
