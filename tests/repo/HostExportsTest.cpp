// SPDX-License-Identifier: MIT
// What the host's library shows to an application that embeds it.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace
{

// The symbols that a library defines for others, as C++ names.
std::vector<std::string> namesIn(const std::string& library)
{
    const std::string command = "nm -DC --defined-only '" + library + "'";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    const std::regex pattern("[0-9a-f]+ [A-Za-z] (.*)\\n?");
    std::vector<std::string> names;
    std::array<char, 4096> line{};
    std::cmatch match;
    while (pipe && std::fgets(line.data(), int(line.size()), pipe.get())) {
        if (std::regex_match(line.data(), match, pattern))
            names.push_back(match[1]);
    }
    return names;
}

} // namespace

#ifdef SCOPIX_FILE_ScopixHost
TEST(Exports, TheHostShowsItsPublicClassesAndNothingElse)
{
    const std::regex shown("(typeinfo for |typeinfo name for |vtable for )?"
                           "scopix::(HostApplication|CommandLine|Commands)\\b.*");
    const std::vector<std::string> names = namesIn(SCOPIX_FILE_ScopixHost);
    EXPECT_FALSE(names.empty());
    for (const std::string& name : names)
        EXPECT_TRUE(std::regex_match(name, shown)) << name;
}
#endif
