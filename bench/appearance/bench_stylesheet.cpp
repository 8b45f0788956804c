// SPDX-License-Identifier: MIT
// Resolves the sizes in a style sheet of one megabyte and in one of 64.
#include <bench/bounds.h>

#include <appearance/stylesheettokens.h>

namespace {

// Like a real style sheet, this one has about three tokens, such as "$4px$", in each rule.
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

// Reads and copies the same text and does nothing else: the least time that resolving can take.
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

// The first bound, 10 ms for one megabyte, is a throughput of 100 megabytes a second.
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
