// SPDX-License-Identifier: MIT
#include "settings/Preferences.h"

#include "xsg/errors/Collected.h"

#include <xsg/core/SoPreferences.h>
#include <xsg/errors/SoReadError.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace scopix;

namespace
{

class PreferencesFile : public testing::Test
{
protected:
    PreferencesFile() { qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit()); }
    ~PreferencesFile() override
    {
        for (const char* name : {"XDG_CONFIG_HOME", "XSG_PREFERENCES", "XSG_TEST_SETTING"})
            qunsetenv(name);
        for (const char* name : {"XSG_TEST_SETTING", "YES", "NO", "COUNT", "RATIO", "PATH_1", "LIST", "LATER",
                                 "SCOPIX_UNDO_MEMORY"})
            SoPreferences::setValue(name, SbString());
    }
    static void write(const QString& path, const QByteArray& text)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    void feed(const QByteArray& text)
    {
        write(usual, text);
        Preferences::feed();
    }

    QTemporaryDir folder;
    const QString usual = folder.filePath("scopix/preferences.conf");
    const Collected<SoReadError> readErrors;
};

TEST_F(PreferencesFile, MayBeginWithAByteOrderMark)
{
    feed("\xEF\xBB\xBFYES = TRUE\nNO = 0\n");
    EXPECT_TRUE(SoPreferences::getBool("YES", false));
    EXPECT_TRUE(readErrors.texts.empty());
}

TEST_F(PreferencesFile, OfAnOlderVersionIsReadAsItWas)
{
    feed("# a comment\n\nYES = TRUE\nNO=0\n  COUNT = -12  # twelve\nRATIO = 0.5\r\n"
         "LIST = a, b; \"c\" = \\d\nPATH_1 = /a b/c#1-\xc3\xa0.xsg");
    EXPECT_TRUE(SoPreferences::getBool("YES", false));
    EXPECT_FALSE(SoPreferences::getBool("NO", true));
    EXPECT_EQ(SoPreferences::getInt("COUNT", 0), -12);
    EXPECT_EQ(SoPreferences::getFloat("RATIO", 0), 0.5F);
    EXPECT_EQ(SoPreferences::getString("LIST", ""), SbString("a, b; \"c\" = \\d"));
    EXPECT_EQ(SoPreferences::getString("PATH_1", ""), SbString("/a b/c#1-\xc3\xa0.xsg"));
    EXPECT_TRUE(readErrors.texts.empty());
}

TEST_F(PreferencesFile, SayHowMuchUndoMayKeep)
{
    EXPECT_EQ(Preferences::undoMemory(), std::size_t(256) << 20);
    feed("SCOPIX_UNDO_MEMORY = 3");
    EXPECT_EQ(Preferences::undoMemory(), std::size_t(3) << 20);
    feed("SCOPIX_UNDO_MEMORY = -1");
    EXPECT_EQ(Preferences::undoMemory(), 0U);
    feed("SCOPIX_UNDO_MEMORY = 2000000000");
    EXPECT_EQ(Preferences::undoMemory(), std::size_t(1) << 40);
}

TEST_F(PreferencesFile, TheEnvironmentWins)
{
    qputenv("XSG_TEST_SETTING", "9");
    feed("XSG_TEST_SETTING = 8");
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 9);
    qunsetenv("XSG_TEST_SETTING");
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 7), 8);
}

TEST_F(PreferencesFile, ReportsABadLineAndReadsTheRest)
{
    feed("XSG_TEST_SETTING = 1\nnonsense\n = 4\nLATER = 2\n");
    EXPECT_EQ(SoPreferences::getInt("LATER", 0), 2);
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 0), 1);
    ASSERT_EQ(readErrors.texts.size(), 2U);
    const std::string path = usual.toStdString();
    EXPECT_EQ(readErrors.texts[0], path + ":2: The line is no setting; expected NAME = value.");
    EXPECT_EQ(readErrors.texts[1], path + ":3: The line is no setting; expected NAME = value.");
}

TEST_F(PreferencesFile, RefusesAFileThatIsTooLarge)
{
    feed("XSG_TEST_SETTING = 1\n" + QByteArray(2'000'000, '#'));
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 5), 5);
    EXPECT_EQ(readErrors.texts.size(), 1U);
}

TEST_F(PreferencesFile, TheEnvironmentNamesTheFile)
{
    const QString other = folder.filePath("other.conf");
    write(other, "XSG_TEST_SETTING = 21");
    qputenv("XSG_PREFERENCES", other.toLocal8Bit());
    Preferences::feed();
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 0), 21);
}

TEST_F(PreferencesFile, NoFileAndAFolderSetNothing)
{
    Preferences::feed();
    qputenv("XSG_PREFERENCES", folder.path().toLocal8Bit());
    Preferences::feed();
    EXPECT_EQ(SoPreferences::getInt("XSG_TEST_SETTING", 3), 3);
    EXPECT_TRUE(readErrors.texts.empty());
}

TEST_F(PreferencesFile, APipeOrADeviceIsReportedAndNotRead)
{
    const QString pipe = folder.filePath("pipe.conf");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString& path : {pipe, QStringLiteral("/dev/zero")}) {
        const std::size_t before = readErrors.texts.size();
        qputenv("XSG_PREFERENCES", path.toLocal8Bit());
        Preferences::feed();
        ASSERT_EQ(readErrors.texts.size(), before + 1);
        EXPECT_NE(readErrors.texts.back().find(path.toStdString()), std::string::npos);
        EXPECT_NE(readErrors.texts.back().find("no regular file"), std::string::npos);
    }
}

} // namespace
