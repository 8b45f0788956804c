// SPDX-License-Identifier: MIT
// Sizes in style sheets: a sheet of one megabyte, and of 64.
#include <bench/bounds.h>

#include <appearance/stylesheettokens.h>

namespace {

// Of sheets as they are: about three tokens to a rule.
QString sheetOf(qsizetype nMegabytes)
{
    const QString strRule = QStringLiteral("QPushButton#name:hover:!pressed\n{\n    color: #e6e6e6;\n"
                                           "    padding: $3px$ $12px$;\n    border-radius: $4px$;\n}\n");
    return strRule.repeated(nMegabytes * 1'000'000 / strRule.size());
}

void Resolve(benchmark::State &state, qsizetype nMegabytes)
{
    const QString strSheet = sheetOf(nMegabytes);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(StyleSheetTokens::resolve(strSheet, 144));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * strSheet.size());
}

// The least that it can take: the same text, looked at and copied.
void Copy(benchmark::State &state, qsizetype nMegabytes)
{
    const QString strSheet = sheetOf(nMegabytes);
    for ([[maybe_unused]] auto _ : state) {
        QString strResult;
        strResult.reserve(strSheet.size());
        for (const QChar c : strSheet)
            strResult += c;
        benchmark::DoNotOptimize(strResult);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * strSheet.size());
}

// 100 megabytes a second are 10 ms for one.
const std::vector<Bound> s_bounds = {
    {"Resolve/1", 1e7, {}},
    {"Resolve/1", 1.5, "Copy/1"},
    {"Resolve/64", 1.5, "Copy/64"},
    {"Resolve/64", 64 * 1.5, "Resolve/1"},
};

} // namespace

int main(int argc, char *argv[])
{
    for (const int nMegabytes : {1, 64}) {
        const std::string size = std::to_string(nMegabytes);
        benchmark::RegisterBenchmark(("Resolve/" + size).c_str(), Resolve, nMegabytes)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("Copy/" + size).c_str(), Copy, nMegabytes)
            ->Unit(benchmark::kMillisecond);
    }
    return runBenchmarks(argc, argv, s_bounds);
}
