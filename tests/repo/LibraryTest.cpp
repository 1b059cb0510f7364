// SPDX-License-Identifier: MIT
// The arrows between the folders, and what the plug-in exports, as the built libraries show them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

std::string outputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> buffer{};
    while (pipe && std::fgets(buffer.data(), int(buffer.size()), pipe.get()))
        output += buffer.data();
    return output;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// The names of the symbols that a library defines for others, sorted.
std::vector<std::string> exportsOf(const std::string& file)
{
    std::vector<std::string> names;
    for (const std::string& line : linesOf(outputOf("nm -D --defined-only --format=posix '" + file + "'")))
        names.push_back(line.substr(0, line.find(' ')));
    std::sort(names.begin(), names.end());
    return names;
}

// The libraries that a library or a program links.
std::string needsOf(const std::string& file)
{
    std::string needs;
    for (const std::string& line : linesOf(outputOf("readelf -d '" + file + "'")))
        if (line.find("(NEEDED)") != std::string::npos)
            needs += line + '\n';
    return needs;
}

// The text of the note that the host reads before it loads a plug-in.
std::string noteOf(const std::string& file)
{
    return outputOf("readelf -p .note.scopix '" + file + "' 2>&1");
}

bool mentions(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(Linking, TheSceneGraphLibraryStandsAlone)
{
    const std::string needs = needsOf(SCOPIX_FILE_xsg);
    EXPECT_TRUE(mentions(needs, "libc.so")) << needs;
    for (const char* other : {"libQt5", "libqwt", "libScopixExtenderAPI", "libSpxDefaults"})
        EXPECT_FALSE(mentions(needs, other)) << needs;
}

TEST(Linking, WhatLetsInspectorsInStandsAlone)
{
    const std::string needs = needsOf(SCOPIX_FILE_ScopixLive);
    EXPECT_TRUE(mentions(needs, "libc.so")) << needs;
    for (const char* other : {"libQt5", "libxsg", "libScopix", "libSpxDefaults"})
        EXPECT_FALSE(mentions(needs, other)) << needs;
}

TEST(Linking, TheContractKnowsNoPlugIn)
{
    const std::string needs = needsOf(SCOPIX_FILE_ScopixExtenderAPI);
    EXPECT_TRUE(mentions(needs, "libQt5Core")) << needs;
    EXPECT_FALSE(mentions(needs, "libSpxDefaults")) << needs;
}

TEST(Linking, TheEditingLibraryKnowsTheContractAndNoPlugIn)
{
    const std::string needs = needsOf(SCOPIX_FILE_ScopixEditing);
    EXPECT_TRUE(mentions(needs, "libScopixExtenderAPI")) << needs;
    for (const char* other : {"libSpxDefaults", "libScopixHost", "libqwt"})
        EXPECT_FALSE(mentions(needs, other)) << needs;
}

#ifdef SCOPIX_FILE_scopix
TEST(Linking, TheProgramFindsItsPlugInsAtRunTime)
{
    const std::string needs = needsOf(SCOPIX_FILE_scopix);
    EXPECT_TRUE(mentions(needs, "libQt5Widgets")) << needs;
    EXPECT_FALSE(mentions(needs, "SpxDefaults")) << needs;
}
#endif

TEST(Exports, ThePlugInOffersItsTwoEntryPointsAndNothingElse)
{
    const std::vector<std::string> expected = {"loadPlugin", "unloadPlugin"};
    EXPECT_EQ(exportsOf(SCOPIX_FILE_SpxDefaults), expected);
}

TEST(Note, EveryPlugInSaysWhatItWasMadeFor)
{
    EXPECT_TRUE(mentions(noteOf(SCOPIX_FILE_SpxDefaults), "name=SpxDefaults"))
        << noteOf(SCOPIX_FILE_SpxDefaults);
    EXPECT_TRUE(mentions(noteOf(SCOPIX_FILE_LightAim), "name=LightAim")) << noteOf(SCOPIX_FILE_LightAim);
    for (const char* plugin : {SCOPIX_FILE_SpxDefaults, SCOPIX_FILE_LightAim})
        EXPECT_TRUE(mentions(noteOf(plugin), "contract=")) << noteOf(plugin);
}

TEST(Note, OutlivesTheLinkersClearingAndStripping)
{
    EXPECT_TRUE(mentions(noteOf(SCOPIX_FILE_TestPluginGood), "contract="))
        << noteOf(SCOPIX_FILE_TestPluginGood);
    const std::string stripped = "stripped-plugin.so";
    outputOf(std::string("strip -o " + stripped + " '") + SCOPIX_FILE_TestPluginGood + "'");
    EXPECT_TRUE(mentions(noteOf(stripped), "contract=")) << noteOf(stripped);
    std::remove(stripped.c_str());
}
