// SPDX-License-Identifier: MIT
// The comments that name a decision, and the page that gives its reason.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace
{

namespace fs = std::filesystem;

using Keys = std::set<std::string>;

std::string textOf(const fs::path& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

Keys keysIn(const std::string& text, const std::regex& pattern)
{
    Keys keys;
    for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match)
        keys.insert((*match)[1]);
    return keys;
}

// A comment may break its line before the key.
Keys keysInComments()
{
    static const std::regex pattern(R"(decisions\.md:[\s/]+([a-z0-9-]+))");
    Keys keys;
    for (const char* folder : {"src", "extender", "editing", "host", "xsg", "live", "plugins"})
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(SCOPIX_SOURCE_DIR) / folder))
            if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp")
                keys.merge(keysIn(textOf(entry.path()), pattern));
    return keys;
}

} // namespace

TEST(Decisions, EachThatACommentNamesHasItsReasonAndEachReasonItsComment)
{
    static const std::regex row(R"(\n\| `([a-z0-9-]+)` \|)");
    const Keys explained = keysIn(textOf(fs::path(SCOPIX_SOURCE_DIR) / "docs/decisions.md"), row);
    EXPECT_EQ(keysInComments(), explained);
    EXPECT_FALSE(explained.empty());
}
