// SPDX-License-Identifier: MIT
// What a feed says, and what the program makes of its versions, addresses and names.
#include "fuzzseeds.h"

#include <updater/appcast.h>
#include <updater/updatetexts.h>

#include <QCoreApplication>
#include <QStringList>

#include <cstdint>
#include <cstdlib>

namespace {

// The first byte only stands for the way in.
constexpr std::string_view s_inputs[] = {
    R"(A{"updates":{"windows":{"latest-version":"3.1.10","download-url":"https://k.example/a/Setup.exe"}}})",
    R"(A{"updates":{"windows":{"latest-version":"4","open-url":"http://k.example/","changelog":"com1.txt"}}})",
    R"(A{"updates":{"windows":{"latest-version":"4","verification":{"sha256":"00","signature":"AA=="}}}})",
};
constexpr std::string_view s_words[] = {"{", "}", "[", "]", "\"", ":", ",", "null", "true", "-1", "1e999",
    "\\u0000", "\\ud800", "\xFF", "\n", "\"windows\":", "\"latest-version\":", "/../", "\\u202e",
    ".99999999999.", "aux."};

void require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

void requireSafe(const QString &strName)
{
    require(!strName.isEmpty() && strName.toUtf8().size() <= 200 && !strName.startsWith(QLatin1Char('.')));
    for (const QChar c : strName)
        require(c.unicode() >= 0x20 && !QStringLiteral("/\\:").contains(c));
}

} // namespace

const FuzzSeeds fuzzSeeds = {s_inputs, s_words};

extern "C" int LLVMFuzzerInitialize(int *pCount, char ***pArguments)
{
    static QCoreApplication s_app(*pCount, *pArguments);
    return 0;
}

// The first byte only leads mutations; it is not part of the feed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pData, std::size_t nSize)
{
    const QByteArray input(reinterpret_cast<const char *>(pData), static_cast<qsizetype>(nSize));
    const Appcast appcast = Appcast::parse(input.mid(1), QStringLiteral("windows"));
    require(appcast.strFault.isEmpty() != appcast.strLatestVersion.isEmpty());
    const QString strRunning = QStringLiteral("3.1.4");
    require(!UpdateTexts::isNewer(appcast.strLatestVersion, strRunning)
        || !UpdateTexts::isNewer(strRunning, appcast.strLatestVersion));
    requireSafe(UpdateTexts::safeFileName(appcast.strDownloadUrl.section(QLatin1Char('/'), -1)));
    requireSafe(UpdateTexts::safeFileName(appcast.strChangelog));
    const QUrl url(appcast.strOpenUrl);
    require(!UpdateTexts::isWebUrl(url) || url.scheme().startsWith(QLatin1String("http")));
    return 0;
}
