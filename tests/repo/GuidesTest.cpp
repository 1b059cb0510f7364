// SPDX-License-Identifier: MIT
// Holds the documentation together: the page of contents leads to every page, links lead somewhere, and what
// the guides show is code of the examples, which other tests build and run.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace
{

const fs::path Root = SCOPIX_SOURCE_DIR;

std::string textOf(const fs::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

std::vector<fs::path> pages()
{
    std::vector<fs::path> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(Root / "docs")) {
        if (entry.path().extension() == ".md")
            found.push_back(entry.path());
    }
    return found;
}

std::vector<std::string> matchesIn(const std::string& text, const char* pattern)
{
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
        found.push_back((*match)[1]);
    return found;
}

// Of files; those into a network and into the page itself are left out.
std::vector<std::string> linksOf(const std::string& text)
{
    std::vector<std::string> files;
    for (const std::string& link : matchesIn(text, R"(\]\(([^)\s]+)\))")) {
        const std::string file = link.substr(0, link.find('#'));
        if (!file.empty() && file.find("://") == std::string::npos)
            files.push_back(file);
    }
    return files;
}

// As "Its code is the example `tool`" names it.
fs::path exampleOf(const std::string& guide)
{
    const std::vector<std::string> names = matchesIn(guide, R"(code\s+is\s+the\s+example\s+`([^`]+)`)");
    if (names.size() != 1)
        return {};
    for (const char* folder : {"examples", "plugins"}) {
        if (fs::is_directory(Root / folder / names[0]))
            return Root / folder / names[0];
    }
    return {};
}

// A guide shows members without the indentation that they have in their class.
std::string withoutIndentation(const std::string& code)
{
    return std::regex_replace(code, std::regex("\n +"), "\n");
}

std::string sourcesOf(const fs::path& example)
{
    std::string all;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(example)) {
        if (entry.is_regular_file())
            all += "\n" + textOf(entry.path());
    }
    return all;
}

} // namespace

TEST(Documentation, TheContentsLeadToEveryPage)
{
    const std::vector<std::string> links = linksOf(textOf(Root / "docs/contents.md"));
    ASSERT_GT(pages().size(), 20U);
    for (const fs::path& page : pages()) {
        const std::string name = page.filename().string();
        EXPECT_TRUE(name == "contents.md" || std::count(links.begin(), links.end(), name))
            << "docs/contents.md does not name " << name;
    }
}

// What is outside of the folder is not installed with it.
TEST(Documentation, LinksOfPagesLeadToPagesAndPictures)
{
    for (const fs::path& page : pages()) {
        for (const std::string& link : linksOf(textOf(page))) {
            EXPECT_TRUE(link.find("..") == std::string::npos && fs::exists(Root / "docs" / link))
                << page.filename() << " links to " << link;
        }
    }
}

TEST(Documentation, LinksOfTheFirstPagesLeadSomewhere)
{
    for (const char* page : {"README.md", "CONTRIBUTING.md", "CHANGELOG.md"}) {
        for (const std::string& link : linksOf(textOf(Root / page)))
            EXPECT_TRUE(fs::exists(Root / link)) << page << " links to " << link;
    }
}

class Guide : public testing::TestWithParam<const char*>
{
};

TEST_P(Guide, ShowsCodeOfItsExample)
{
    const std::string guide = textOf(Root / "docs" / GetParam());
    const fs::path example = exampleOf(guide);
    ASSERT_FALSE(example.empty()) << "it names no example";
    const std::string sources = withoutIndentation(sourcesOf(example));
    const std::vector<std::string> blocks =
        matchesIn(guide, "```(?:cpp|cmake)\n([^`]+)```"); // the code has no grave accent
    EXPECT_GE(blocks.size(), 4U);
    for (const std::string& block : blocks)
        EXPECT_NE(sources.find(withoutIndentation("\n" + block)), std::string::npos)
            << "not in " << example << ":\n"
            << block;
}

INSTANTIATE_TEST_SUITE_P(Documentation, Guide,
                         testing::Values("write-field-editor.md", "write-node-editor.md", "write-tool.md",
                                         "write-adapter.md", "embed.md"));
