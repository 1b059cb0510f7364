// SPDX-License-Identifier: MIT
#include "settings/ScreenLayouts.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

using namespace scopix;

namespace
{

class ScreenLayoutsTest : public testing::Test
{
protected:
    ScreenLayoutsTest() { qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit()); }
    ~ScreenLayoutsTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    static QString set(const QString& key, const QVariant& value)
    {
        return SettingsFile(UserSettings::windowFile()).setValue(key, value);
    }
    static void save(const char* geometry, const char* docks)
    {
        EXPECT_EQ(SettingsFile(UserSettings::windowFile()).change([&](QSettings& settings) {
            ScreenLayouts::save(settings, {geometry, docks});
        }),
                  QString());
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(ScreenLayoutsTest, EachArrangementOfScreensHasItsOwn)
{
    const QString here = ScreenLayouts::currentScreens();
    EXPECT_FALSE(here.isEmpty());
    EXPECT_EQ(ScreenLayouts::find(here).docks, QByteArray());
    save("left", "docks of here");
    EXPECT_EQ(ScreenLayouts::find(here).geometry, QByteArray("left"));
    // Another arrangement begins with what was saved last, and then keeps its own.
    EXPECT_EQ(ScreenLayouts::find("elsewhere").docks, QByteArray("docks of here"));
    set("screens-elsewhere/geometry", QByteArray("right"));
    set("screens-elsewhere/layout", QByteArray("docks of there"));
    save("left again", "docks of here again");
    EXPECT_EQ(ScreenLayouts::find("elsewhere").docks, QByteArray("docks of there"));
    EXPECT_EQ(ScreenLayouts::find("elsewhere").geometry, QByteArray("right"));
    EXPECT_EQ(ScreenLayouts::find(here).geometry, QByteArray("left again"));
}

TEST_F(ScreenLayoutsTest, WhatEarlierVersionsSavedIsFound)
{
    set("geometry", QByteArray("old"));
    set("layout", QByteArray("old docks"));
    EXPECT_EQ(ScreenLayouts::find(ScreenLayouts::currentScreens()).docks, QByteArray("old docks"));
}

TEST_F(ScreenLayoutsTest, ArrangementsThatWereNotUsedForLongAreDropped)
{
    QStringList known;
    for (int i = 0; i < 30; ++i) {
        known += QStringLiteral("n%1").arg(i);
        set("screens-" + known.last() + "/layout", QByteArray("docks"));
    }
    set("screens", known);
    save("now", "here");
    const SettingsFile settings(UserSettings::windowFile());
    const QStringList kept = settings.value("screens").toStringList();
    EXPECT_EQ(kept.first(), ScreenLayouts::currentScreens());
    EXPECT_LT(kept.size(), 20);
    for (const QString& each : known)
        EXPECT_EQ(settings.value("screens-" + each + "/layout").isValid(), kept.contains(each))
            << qPrintable(each);
}

} // namespace
