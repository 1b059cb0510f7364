// SPDX-License-Identifier: MIT
// The page that says what the program promises, and the tests that hold it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace
{

namespace fs = std::filesystem;

std::string textOf(const fs::path& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::smatch> matchesIn(const std::string& text, const std::regex& pattern)
{
    return {std::sregex_iterator(text.begin(), text.end(), pattern), {}};
}

// "Suite.Name", as the tests of the tree have them.
std::set<std::string> allTests()
{
    static const std::regex test(R"(TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\))");
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(SCOPIX_SOURCE_DIR) / "tests")) {
        if (entry.path().extension() != ".cpp")
            continue;
        const std::string text = textOf(entry.path());
        for (const std::smatch& match : matchesIn(text, test))
            names.insert(match[1].str() + "." + match[2].str());
    }
    return names;
}

// Those that are a round of tools/torture, one for each kind.
std::set<std::string> allAttacks()
{
    static const std::regex list(R"(foreach\(kind ([^)]*)\))");
    const std::string text = textOf(fs::path(SCOPIX_SOURCE_DIR) / "tests/attacks/torture/CMakeLists.txt");
    std::set<std::string> names;
    for (const std::smatch& kinds : matchesIn(text, list)) {
        const std::string words = kinds[1];
        for (const std::smatch& kind : matchesIn(words, std::regex(R"(\S+)")))
            names.insert("attacks_torture." + kind.str());
    }
    return names;
}

} // namespace

TEST(Promises, EachIsHeldByATestThatExists)
{
    static const std::regex row(R"(\n\| ([A-Z][^|]*) \| ([^|\n]*) \|)");
    static const std::regex name("`([^`]+)`");
    std::set<std::string> known = allTests();
    known.merge(allAttacks());
    const std::string page = textOf(fs::path(SCOPIX_SOURCE_DIR) / "docs/promises.md");
    int promises = 0;
    for (const std::smatch& promise : matchesIn(page, row)) {
        ++promises;
        const std::string holders = promise[2];
        const auto tests = matchesIn(holders, name);
        EXPECT_FALSE(tests.empty()) << "held by nothing: " << promise[1];
        for (const std::smatch& test : tests)
            EXPECT_TRUE(known.count(test[1])) << "there is no test " << test[1];
    }
    EXPECT_GT(promises, 15);
}
