// SPDX-License-Identifier: MIT
#include "settings/UserSettings.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace scopix;

TEST(UserSettings, AreInTheSamePlaceWhereverTheProgramIsStarted)
{
    qputenv("XDG_CONFIG_HOME", "relative/config");
    const QString file = UserSettings::windowFile();
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(file, QDir::home().filePath("relative/config/scopix/window.ini"));
}
