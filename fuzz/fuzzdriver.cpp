// SPDX-License-Identifier: MIT
// Drives a fuzz target without libFuzzer: mutations of honest inputs, the same ones for the same seed.
#include "fuzzseeds.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerInitialize(int *pCount, char ***pArguments);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pData, std::size_t nSize);

namespace {

class Mutator
{
public:
    explicit Mutator(unsigned nSeed)
        : m_random(nSeed)
    {
    }

    std::string next()
    {
        std::string text(pick(fuzzSeeds.inputs));
        for (std::size_t n = below(8); n > 0; --n)
            mutate(text);
        if (below(4000) == 0 && text.front() == 'F')
            text.append(1100000, ' ');
        return text;
    }

private:
    std::size_t below(std::size_t n) { return m_random() % n; }
    std::string_view pick(std::span<const std::string_view> list) { return list[below(list.size())]; }

    // The first byte, the way into the target, stays.
    void mutate(std::string &text)
    {
        const std::size_t nAt = 1 + below(text.size());
        switch (below(7)) {
        case 0:
            text.insert(nAt, pick(fuzzSeeds.words));
            break;
        case 1:
            text.erase(nAt, 1 + below(8));
            break;
        case 2:
            text.insert(nAt, 1, static_cast<char>(m_random()));
            break;
        case 3:
            if (nAt < text.size())
                text[nAt] = static_cast<char>(text[nAt] ^ (1 << below(8)));
            break;
        case 4:
            text.insert(nAt, text.substr(nAt, below(40)));
            break;
        case 5:
            text.replace(nAt, below(12), pick(fuzzSeeds.words));
            break;
        case 6: {
            const std::string_view other = pick(fuzzSeeds.inputs).substr(1);
            text.insert(nAt, other.substr(below(other.size())));
            break;
        }
        }
    }

    std::mt19937 m_random;
};

} // namespace

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    const long nInputs = argc > 1 ? std::atol(argv[1]) : 1000000;
    const auto nSeed = static_cast<unsigned>(argc > 2 ? std::atol(argv[2]) : 1);
    Mutator mutator(nSeed);
    for (long i = 0; i < nInputs; ++i) {
        const std::string input = mutator.next();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
    }
    std::printf("%ld inputs with the seed %u: no fault\n", nInputs, nSeed);
}
