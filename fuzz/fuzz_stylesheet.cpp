// SPDX-License-Identifier: MIT
// Style sheets: sizes resolved in one pass against the rules taken one character at a time.
#include "fuzzseeds.h"

#include <appearance/stylesheettokens.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

constexpr std::string_view s_inputs[] = {
    "Ca { margin: $12px$; }",
    "EQMenu::item { padding: $3px$ $10px$; border: 1px solid #2b2b2b; }",
    "H$abc$12px$ $-7px$ $2147483647px$ $1.5px$ $$ $px$",
    "1\xc3\xa4$5\xe2\x82\xacpx$",
};
constexpr std::string_view s_words[] = {"$", "$$", "px", "$12px$", "$-1px$", "ppxx", "99999999999", "\n",
    "PX", "0x10", "+", " ", "\xff", std::string_view("\0", 1)};

// One character at a time, as the rules say it.
std::string resolveSlowly(const std::string &strText, long long nDPI)
{
    std::string result;
    for (std::size_t i = 0; i < strText.size(); ++i) {
        if (strText[i] != '$') {
            result += strText[i];
            continue;
        }
        const std::size_t nClose = strText.find('$', i + 1);
        std::string token = nClose == std::string::npos ? "" : strText.substr(i + 1, nClose - i - 1);
        if (token.find("px") == std::string::npos)
            continue;
        for (std::size_t n = token.find("px"); n != std::string::npos; n = token.find("px", n))
            token.erase(n, 2);
        const int nNumber = QString::fromUtf8(token.data(), qsizetype(token.size())).toInt();
        result += std::to_string(nDPI * nNumber / 96) + "px";
        i = nClose;
    }
    return result;
}

} // namespace

const FuzzSeeds fuzzSeeds = {s_inputs, s_words};

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

// The first byte is the density.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pData, std::size_t nSize)
{
    if (nSize == 0)
        return 0;
    // Only what is text in one way is compared.
    const QString strText =
        QString::fromUtf8(reinterpret_cast<const char *>(pData) + 1, qsizetype(nSize) - 1);
    const int nDPI = pData[0] * 2;
    const QString strExpected = QString::fromStdString(resolveSlowly(strText.toStdString(), nDPI));
    if (StyleSheetTokens::resolve(strText, nDPI) != strExpected)
        std::abort();
    return 0;
}
