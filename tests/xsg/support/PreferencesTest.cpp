// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/support/SoPreferences.h>

#include "xsg/errors/Collected.h"

#include <cstdlib>
#include <fstream>

namespace
{

class Preferences : public testing::Test
{
protected:
    ~Preferences() override
    {
        SoPreferences::setFile(SbString());
        for (const char* name : {"XSG_TEST_SETTING", "XSG_PREFERENCES"})
            unsetenv(name);
        std::remove(path.c_str());
    }
    void useFile(const std::string& text)
    {
        std::ofstream(path, std::ios::binary) << text;
        SoPreferences::setFile(path);
    }
    const std::string path = testing::TempDir() + "xsg_preferences_" +
                             testing::UnitTest::GetInstance()->current_test_info()->name() + ".conf";
    const Collected<SoDebugError> warnings;
    const Collected<SoReadError> readErrors;
};

} // namespace

TEST_F(Preferences, TheEnvironmentComesFirstThenTheFileThenTheDefault)
{
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 7);
    useFile("XSG_TEST_SETTING = 8\n");
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 8);
    setenv("XSG_TEST_SETTING", "9", 1);
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 9);
    setenv("XSG_TEST_SETTING", "", 1);
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 8);
}

TEST_F(Preferences, EachKindIsRead)
{
    useFile("# a comment\n\nYES = TRUE\nNO=0\n  COUNT = -12  # twelve\nRATIO = 0.5\r\nPATH_1 = /a b/c#1.xsg");
    EXPECT_TRUE(SoPreferences::getBool("YES", false));
    EXPECT_FALSE(SoPreferences::getBool("NO", true));
    EXPECT_EQ(SoPreferences::getInt("COUNT", 0), -12);
    EXPECT_EQ(SoPreferences::getFloat("RATIO", 0), 0.5F);
    EXPECT_EQ(SoPreferences::getString("PATH_1", ""), SbString("/a b/c#1.xsg"));
    EXPECT_EQ(SoPreferences::getString("ABSENT", "default"), SbString("default"));
    EXPECT_TRUE(SoPreferences::getString("ABSENT", SbString()).isNull());
    EXPECT_TRUE(warnings.texts.empty());
    EXPECT_TRUE(readErrors.texts.empty());
}

TEST_F(Preferences, TextThatIsNoNumberGivesTheDefaultAndOneWarning)
{
    setenv("XSG_TEST_SETTING", "many", 1);
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 3), 3);
    ASSERT_EQ(warnings.texts.size(), 1U);
    EXPECT_EQ(warnings.texts[0], "SoPreferences: The setting XSG_TEST_SETTING is \"many\"; expected a whole "
                                 "number. The default is used.");
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 4), 4);
    EXPECT_EQ(warnings.texts.size(), 1U);
    EXPECT_TRUE(SoPreferences::getBool("XSG_TEST_SETTING", true));
    EXPECT_EQ(SoPreferences::getFloat("XSG_TEST_SETTING", 0.25F), 0.25F);
    EXPECT_EQ(warnings.texts.size(), 3U);
}

TEST_F(Preferences, ABadLineIsNamedAndTheRestIsRead)
{
    useFile("XSG_TEST_SETTING = 1\nnonsense\n = 4\nLATER = 2\n");
    EXPECT_EQ(SoPreferences::getInt("LATER", 0), 2);
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 0), 1);
    ASSERT_EQ(readErrors.texts.size(), 2U);
    EXPECT_EQ(readErrors.texts[0], path + ":2: The line is no setting; expected NAME = value.");
    EXPECT_EQ(readErrors.texts[1], path + ":3: The line is no setting; expected NAME = value.");
}

TEST_F(Preferences, AFileThatIsTooLargeIsRefused)
{
    useFile("XSG_TEST_SETTING = 1\n" + std::string(2'000'000, '#'));
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 5), 5);
    EXPECT_EQ(readErrors.texts.size(), 1U);
}

TEST_F(Preferences, TheEnvironmentNamesTheFile)
{
    std::ofstream(path) << "XSG_TEST_SETTING = 21";
    setenv("XSG_PREFERENCES", path.c_str(), 1);
    SoPreferences::setFile(SbString());
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 0), 21);
}

TEST_F(Preferences, NoNameAndAFolderGiveTheDefault)
{
    EXPECT_EQ(SoPreferences::getInt(nullptr, 1), 1);
    EXPECT_EQ(SoPreferences::getInt("", 2), 2);
    SoPreferences::setFile(testing::TempDir());
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 3), 3);
}
