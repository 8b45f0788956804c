// SPDX-License-Identifier: MIT
// Drives a fuzz target without libFuzzer: mutations of honest inputs, the same ones for the same seed.
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerInitialize(int *pCount, char ***pArguments);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pData, std::size_t nSize);

namespace {

using namespace std::string_view_literals;

constexpr std::array<std::string_view, 22> s_seeds {
    R"(F{"type":3,"id":0})",
    R"(F{"type":4})",
    R"(F{"type":6,"id":1,"object":"target","method":"add","args":[1,2]})",
    R"(F{"type":6,"id":2,"object":"target","method":"echo","args":["a\u0000\ud83d\ude00\ud800"]})",
    R"(F{"type":6,"id":3,"object":"target","method":"map","args":[{"a":{"b":[null,true,1e9]}}]})",
    R"(F{"type":6,"id":4,"object":"target","method":"child","args":[]})",
    R"(F{"type":6,"id":5,"object":"target","method":5,"args":[]})",
    R"(F{"type":7,"object":"target","signal":5})",
    R"(F{"type":8,"object":"target","signal":5})",
    R"(F{"type":9,"object":"target","property":1,"value":{"x":-1.5e-7}})",
    R"(F{"type":10,"id":6,"object":"target","signal":0,"args":[],"data":""})",
    R"(F[1,"two",{"three":[]}])",
    "H127.0.0.1:4711\nqrc:\n",
    "Hlocalhost:4711\nhttp://a\nkey=0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE",
    "Hlocalhost:4711\n-\n",
    "HLOCALHOST:4711\nqrc:\nkey=",
    "Hevil.example:4711\n-\nkey=0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE",
    "B\x81\x91\0\0\0\0{\"type\":3,\"id\":0}\x89\x83\0\0\0\0abc"sv,
    "B\x01\x88\0\0\0\0{\"type\":\x80\x82\0\0\0\0"
    "4}\x88\x82\0\0\0\0\x03\xE8"sv,
    "B\x81\xFE\0\x11\0\0\0\0{\"type\":3,\"id\":0}\x82\x83\0\0\0\0abc"sv,
    "B\x81\xFF\0\0\0\0\0\0\0\x11\1\2\3\4{\"type\":3,\"id\":0}"sv,
    "H[::1]:4711\nnull\na=b&key=%30123456789abcdefghijklmnopqrstuvwxyz_-ABCDE&key=",
};

constexpr std::array<std::string_view, 31> s_words {"{", "}", "[", "]", "\"", ":", ",", "null", "true", "-1",
    "0", "2147483648", "9223372036854775808", "1e999", "\\u0000", "\\ud800", "\xFF", "\n",
    "\"type\":", "\"object\":\"target\"", "\"__QObject*__\"", "\"deleteLater\"", "\"destroyed\"",
    "key=", "%00", "qrc:", "-", "%6Bey=", ":4711", "\x81\x80\0\0\0\0"sv, "\x7F\xFF\xFF\xFF"};

class Mutator
{
public:
    explicit Mutator(unsigned nSeed)
        : m_random(nSeed)
    {
    }

    std::string next()
    {
        std::string text(pick(s_seeds));
        for (std::size_t n = below(8); n > 0; --n)
            mutate(text);
        if (below(4000) == 0 && text.front() == 'F')
            text.append(1100000, ' ');
        return text;
    }

private:
    std::size_t below(std::size_t n) { return m_random() % n; }
    template <typename List>
    std::string_view pick(const List &list)
    {
        return list[below(list.size())];
    }

    // The first byte, the way into the target, stays.
    void mutate(std::string &text)
    {
        const std::size_t nAt = 1 + below(text.size());
        switch (below(7)) {
        case 0:
            text.insert(nAt, pick(s_words));
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
            text.replace(nAt, below(12), pick(s_words));
            break;
        case 6: {
            const std::string_view other = pick(s_seeds).substr(1);
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
