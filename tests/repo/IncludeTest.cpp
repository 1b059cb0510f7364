// SPDX-License-Identifier: MIT
// The arrows between the folders, as the sources' own include lines draw them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

namespace fs = std::filesystem;

struct Include {
    fs::path file;
    std::size_t line;
    bool quoted;
    std::string target;
};

std::ostream& operator<<(std::ostream& out, const Include& include)
{
    return out << include.file.string() << ':' << include.line << " includes " << include.target;
}

fs::path root()
{
    return SCOPIX_SOURCE_DIR;
}

bool isSource(const fs::path& file)
{
    return file.extension() == ".h" || file.extension() == ".cpp";
}

std::vector<fs::path> sourcesIn(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(root() / folder))
        if (isSource(entry.path()))
            files.push_back(entry.path());
    return files;
}

std::vector<Include> includesOf(const fs::path& file)
{
    static const std::regex pattern(R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re");
    std::vector<Include> includes;
    std::ifstream stream(file);
    std::string text;
    for (std::size_t line = 1; std::getline(stream, text); ++line) {
        std::smatch match;
        if (std::regex_search(text, match, pattern))
            includes.push_back({fs::relative(file, root()), line, match[1] == "\"", match[2]});
    }
    return includes;
}

std::vector<Include> includesIn(const fs::path& folder)
{
    std::vector<Include> all;
    for (const fs::path& file : sourcesIn(folder)) {
        const std::vector<Include> includes = includesOf(file);
        all.insert(all.end(), includes.begin(), includes.end());
    }
    return all;
}

bool startsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

bool isGenerated(const std::string& target)
{
    return startsWith(target, "ui_") || startsWith(target, "moc_") || fs::path(target).extension() == ".moc";
}

std::set<std::string> fileNamesIn(const fs::path& folder)
{
    std::set<std::string> names;
    for (const fs::path& file : sourcesIn(folder))
        names.insert(file.filename().string());
    return names;
}

bool isQt(const std::string& target)
{
    static const std::regex pattern(R"(^(Q[A-Z]|Qt|q[a-z]+\.h$|qwt))");
    return std::regex_search(target, pattern);
}

std::string buildFileOf(const std::string& folder)
{
    std::ifstream stream(root() / folder / "CMakeLists.txt");
    return {std::istreambuf_iterator<char>(stream), {}};
}

// Each level of a library, from the bottom up, as its build file declares them.
std::vector<std::string> levelsOf(const std::string& folder)
{
    const std::string text = buildFileOf(folder);
    std::smatch match;
    if (std::regex_search(text, match, std::regex(R"(set\(levels\s+([^)]*)\))"))) {
        std::istringstream list(match[1]);
        return {std::istream_iterator<std::string>(list), {}};
    }
    const std::regex declared(R"(scopix_add_level\(\w+ (\w+))");
    std::vector<std::string> levels;
    for (std::sregex_iterator it(text.begin(), text.end(), declared), end; it != end; ++it)
        levels.push_back((*it)[1]);
    return levels;
}

// "fields" of "xsg/fields/SoSFFloat.h"
std::string levelIn(const std::string& path)
{
    const auto start = path.find('/') + 1;
    return path.substr(start, path.find('/', start) - start);
}

class Layer : public ::testing::TestWithParam<const char*>
{
};

} // namespace

TEST_P(Layer, QuotesOnlyItsOwnHeaders)
{
    const std::set<std::string> own = fileNamesIn(GetParam());
    for (const Include& include : includesIn(GetParam()))
        if (include.quoted && !isGenerated(include.target)) {
            EXPECT_TRUE(own.count(fs::path(include.target).filename().string())) << include;
            EXPECT_EQ(include.target.find(".."), std::string::npos) << include;
        }
}

TEST_P(Layer, FindsTheSceneGraphInXsgAndTheContractInExtender)
{
    for (const Include& include : includesIn(GetParam())) {
        if (startsWith(include.target, "xsg/")) {
            EXPECT_TRUE(fs::exists(root() / include.target)) << include;
        } else if (startsWith(include.target, "scopix/editing/")) {
            EXPECT_TRUE(fs::exists(root() / include.target.substr(7))) << include;
        } else if (startsWith(include.target, "scopix/live/")) {
            EXPECT_TRUE(fs::exists(root() / include.target.substr(7))) << include;
        } else if (startsWith(include.target, "scopix/")) {
            EXPECT_TRUE(fs::exists(root() / "extender" / include.target.substr(7))) << include;
        }
        for (const char* folder : {"src/", "extender/", "tests/"})
            EXPECT_FALSE(startsWith(include.target, folder)) << include;
    }
}

TEST_P(Layer, HasOneGuardAndItsOwnHeaderFirst)
{
    for (const fs::path& file : sourcesIn(GetParam())) {
        std::ifstream stream(file);
        const std::string text((std::istreambuf_iterator<char>(stream)), {});
        if (file.extension() == ".h") {
            EXPECT_NE(text.find("#pragma once"), std::string::npos) << file;
            continue;
        }
        const std::string header = fs::path(file).replace_extension(".h").filename().string();
        const std::vector<Include> includes = includesOf(file);
        if (fs::exists(file.parent_path() / header) && !includes.empty()) {
            EXPECT_EQ(fs::path(includes.front().target).filename(), header) << file;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Arrows, Layer,
                         ::testing::Values("xsg", "live", "extender", "editing", "src", "host"),
                         [](const auto& info) { return std::string(info.param); });

TEST(Contract, KnowsNothingOfEditing)
{
    for (const Include& include : includesIn("extender"))
        EXPECT_FALSE(startsWith(include.target, "scopix/editing/")) << include;
}

TEST(SceneGraph, KnowsNeitherQtNorTheContract)
{
    for (const Include& include : includesIn("xsg")) {
        EXPECT_FALSE(isQt(include.target)) << include;
        EXPECT_FALSE(startsWith(include.target, "scopix/")) << include;
    }
}

// The build enforces it for every file that a level compiles; this finds headers that only higher levels
// include.
TEST(SceneGraph, EachLevelIncludesOnlyItselfAndThoseBelow)
{
    const std::vector<std::string> levels = levelsOf("xsg");
    ASSERT_FALSE(levels.empty());
    std::set<std::string> seen;
    for (const std::string& level : levels) {
        seen.insert(level);
        for (const Include& include : includesIn("xsg/" + level)) {
            if (startsWith(include.target, "xsg/")) {
                EXPECT_TRUE(seen.count(levelIn(include.target))) << include;
            }
        }
    }
    for (const fs::path& file : sourcesIn("xsg"))
        EXPECT_TRUE(seen.count(levelIn(fs::relative(file, root()).string()))) << file << " is in no level";
}

TEST(Live, KnowsNeitherQtNorASceneGraph)
{
    for (const std::string& level : levelsOf("live"))
        for (const Include& include : includesIn("live/" + level)) {
            EXPECT_FALSE(isQt(include.target)) << include;
            EXPECT_FALSE(startsWith(include.target, "xsg/")) << include;
        }
}

TEST(Live, EachLevelIncludesOnlyItselfAndThoseBelow)
{
    const std::vector<std::string> levels = levelsOf("live");
    ASSERT_FALSE(levels.empty());
    std::set<std::string> seen;
    for (const std::string& level : levels) {
        seen.insert(level);
        for (const Include& include : includesIn("live/" + level))
            if (startsWith(include.target, "scopix/live/")) {
                EXPECT_TRUE(seen.count(levelIn(include.target.substr(7)))) << include;
            }
    }
}

// Headers of the host are included by their level: "undo/UndoHistory.h".
TEST(Host, EachLevelIncludesOnlyItselfAndThoseBelow)
{
    const std::vector<std::string> levels = levelsOf("host");
    ASSERT_GT(levels.size(), 10U);
    std::set<std::string> seen;
    for (const std::string& level : levels) {
        seen.insert(level);
        for (const Include& include : includesIn("host/" + level)) {
            if (include.quoted && !isGenerated(include.target)) {
                EXPECT_TRUE(seen.count(include.target.substr(0, include.target.find('/')))) << include;
            }
        }
    }
    seen.insert("reader"); // programs of their own
    seen.insert("trial");
    seen.insert("program"); // and what only the inspector's program has
    for (const fs::path& file : sourcesIn("host"))
        EXPECT_TRUE(seen.count(levelIn(fs::relative(file, root()).string()))) << file << " is in no level";
}
