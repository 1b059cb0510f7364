// SPDX-License-Identifier: MIT
#include "FieldEditorSettings.h"

#include <QString>

#include <gtest/gtest.h>

TEST(FieldEditorSettings, GiveTheMetricsOfEveryKey)
{
    const struct {
        const char* key;
        int value;
    } settings[] = {
        {"frameLineWidth", 0},
        {"labelLineWidth", 0},
        {"labelPointSize", 10},
        {"labelHeight", 20},
        {"buttonWidth", 20},
        {"buttonHeight", 20},
        {"PopupFrameWidth", 260},
        {"PopupFrameHeight", 100},
        {"PopupLayoutMargin", 6},
        {"PopupLayoutSpacing", 8},
        {"SFieldLayoutMargin", 4},
        {"SFieldLayoutSpacing", 6},
        {"SFieldEditLayoutMargin", 0},
        {"SFieldEditLayoutSpacing", 0},
        {"SFButtonLayoutMargin", 2},
        {"SFButtonLayoutSpacing", 0},
        {"SFEditionAreaLayMargin", 0},
        {"SFEditionAreaLaySpacing", 2},
        {"SFComponentHeight", 18},
        {"SFBoolWidth", 16},
        {"SFColorSpacing", 6},
        {"SFColorMargin", 0},
        {"SFColorInterSpacing", 2},
        {"SFColorDispWidth", 20},
        {"SFVecLineHeight", 16},
        {"SFVecLabelHeight", 14},
        {"SF4fBoxVSpacing", 4},
        {"SF4fBoxHSpacing", 4},
        {"SF4fBoxHMargin", 2},
        {"SF3fBoxVSpacing", 4},
        {"SF3fBoxHSpacing", 20},
        {"SF3fBoxHMargin", 2},
        {"SF2BoxHSpacing", 25},
        {"SF2BoxHMargin", 2},
        {"SF2BoxVSpacing", 4},
        {"MFGlobalLayoutSpacing", 2},
        {"MFGlobalLayoutMarging", 6},
        {"MFGlobalButtonsLayoutMargin", 0},
        {"MFGlobalButtonsLayoutSpacing", 5},
        {"MFButtonLayoutMargin", 0},
        {"MFButtonLayoutSpacing", 0},
        {"MFAccessWidth", 60},
        {"MFManageAccessSpacerWidth", 0},
        {"MFManageAccessSpacerHeight", 0},
        {"MFAccessMoveSpacerHeight", 0},
        {"MFAccessMoveSpacerWidth", 0},
        {"MFTableMinHeightWin", 43},
        {"MFTableMinHeightUnix", 46},
    };
    for (int round = 0; round < 2; ++round) { // the second time from the cache
        for (const auto& [key, value] : settings)
            EXPECT_EQ(xsgsettings_fieldEditor(key), value) << key;
    }
}

TEST(FieldEditorSettings, GiveZeroForAnUnknownKeyEveryTime)
{
    EXPECT_EQ(xsgsettings_fieldEditor("noSuchSetting"), 0);
    EXPECT_EQ(xsgsettings_fieldEditor("noSuchSetting"), 0);
    EXPECT_EQ(xsgsettings_fieldEditor(QString()), 0);
}

TEST(FieldEditorSettings, TellUpperFromLowerCase)
{
    EXPECT_EQ(xsgsettings_fieldEditor("sfboolwidth"), 0);
    EXPECT_EQ(xsgsettings_fieldEditor("SFBoolWidth"), 16);
}
