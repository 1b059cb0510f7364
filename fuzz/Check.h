// SPDX-License-Identifier: MIT
// What the checks share that the fuzzers and the tests that replay their corpora run.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace fuzz
{

using Input = std::vector<std::uint8_t>;

inline void require(bool holds, const std::string& what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what.c_str());
    std::abort();
}

/// Every file of a folder.
inline std::vector<Input> inputsOf(const std::string& folder)
{
    std::vector<Input> inputs;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream in(entry.path(), std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    return inputs;
}

/// Each fuzzer is one check, kept from input to input.
template <class Check>
int runCheck(const std::uint8_t* data, std::size_t size)
{
    static auto& check = *new Check;
    check(data, size);
    return 0;
}

} // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
