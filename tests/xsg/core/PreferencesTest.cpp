// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/core/SoPreferences.h>
#include <xsg/errors/SoDebugError.h>

#include "xsg/errors/Collected.h"

#include <cstdlib>

namespace
{

class Preferences : public testing::Test
{
protected:
    ~Preferences() override
    {
        unsetenv("XSG_TEST_SETTING");
        for (const char* name : {"XSG_TEST_SETTING", "YES", "NO", "COUNT", "RATIO", "PATH_1"})
            SoPreferences::setValue(name, SbString());
    }
    const Collected<SoDebugError> warnings;
};

} // namespace

TEST_F(Preferences, TheEnvironmentComesFirstThenTheValueThatWasSetThenTheDefault)
{
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 7);
    SoPreferences::setValue("XSG_TEST_SETTING", "8");
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 8);
    setenv("XSG_TEST_SETTING", "9", 1);
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 9);
    setenv("XSG_TEST_SETTING", "", 1);
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 8);
    SoPreferences::setValue("XSG_TEST_SETTING", SbString());
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 7);
}

TEST_F(Preferences, EachKindIsRead)
{
    SoPreferences::setValue("YES", "TRUE");
    SoPreferences::setValue("NO", "0");
    SoPreferences::setValue("COUNT", " -12 ");
    SoPreferences::setValue("RATIO", "0.5");
    SoPreferences::setValue("PATH_1", "/a b/c#1.xsg");
    EXPECT_TRUE(SoPreferences::getBool("YES", false));
    EXPECT_FALSE(SoPreferences::getBool("NO", true));
    EXPECT_EQ(SoPreferences::getInt("COUNT", 0), -12);
    EXPECT_EQ(SoPreferences::getFloat("RATIO", 0), 0.5F);
    EXPECT_EQ(SoPreferences::getString("PATH_1", ""), SbString("/a b/c#1.xsg"));
    EXPECT_EQ(SoPreferences::getString("ABSENT", "default"), SbString("default"));
    EXPECT_TRUE(SoPreferences::getString("ABSENT", SbString()).isNull());
    EXPECT_TRUE(warnings.texts.empty());
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

TEST_F(Preferences, NoNameGivesTheDefault)
{
    EXPECT_EQ(SoPreferences::getInt(nullptr, 1), 1);
    EXPECT_EQ(SoPreferences::getInt("", 2), 2);
    SoPreferences::setValue(nullptr, "3");
    SoPreferences::setValue("", "3");
    EXPECT_EQ(SoPreferences::getInt("", 2), 2);
}
