// SPDX-License-Identifier: MIT
// Whose plug-ins are loaded.
#include "plugins/LibraryTrust.h"
#include "plugins/PluginLibrary.h"

#include <gtest/gtest.h>

#include <QtCore>

#include <sys/stat.h>
#include <unistd.h>

using namespace scopix;

namespace
{

class TrustInLibraries : public ::testing::Test
{
protected:
    TrustInLibraries()
    {
        QDir(root()).mkpath("folder/inner");
        for (const QString& path : {library, root() + "/program/program"}) {
            QDir().mkpath(QFileInfo(path).path());
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
        for (const char* path : {"", "/folder", "/folder/inner", "/program"})
            mode(root() + path, 0755);
        mode(library, 0644);
    }

    QString root() const { return QDir(m_folder.path()).canonicalPath(); }
    static void mode(const QString& path, mode_t bits)
    {
        EXPECT_EQ(chmod(qPrintable(path), bits), 0) << qPrintable(path);
    }
    LibraryTrust trust() const { return LibraryTrust(geteuid(), root() + "/program/program"); }
    QString whyNot() const { return trust().whyNot(library); }

    QTemporaryDir m_folder;
    const QString library = root() + "/folder/inner/libPlugin.so";
};

TEST_F(TrustInLibraries, YoursIsLoaded)
{
    EXPECT_EQ(whyNot(), QString());
}

TEST_F(TrustInLibraries, AFileThatEveryUserMayWriteToIsNot)
{
    mode(library, 0666);
    EXPECT_TRUE(whyNot().startsWith("every user may write to it,")) << qPrintable(whyNot());
}

TEST_F(TrustInLibraries, AFolderThatEveryUserMayWriteToIsNotEvenWhereOnlyOwnersDelete)
{
    mode(root() + "/folder/inner", 0777);
    EXPECT_TRUE(whyNot().contains("folder “" + root() + "/folder/inner”")) << qPrintable(whyNot());
    mode(root() + "/folder/inner", 01777);
    EXPECT_TRUE(whyNot().contains("every user may write to its folder")) << qPrintable(whyNot());
}

TEST_F(TrustInLibraries, AFolderAboveMayBeOpenToAllWhereOnlyOwnersDelete)
{
    mode(root() + "/folder", 01777);
    EXPECT_EQ(whyNot(), QString());
    mode(root() + "/folder", 0777);
    EXPECT_TRUE(whyNot().contains(root() + "/folder”")) << qPrintable(whyNot());
}

// Who may write there can replace the program itself.
TEST_F(TrustInLibraries, TheFoldersAboveTheProgramAreNotAsked)
{
    mode(root(), 0777);
    EXPECT_EQ(whyNot(), QString());
    EXPECT_NE(LibraryTrust(geteuid(), "/usr/bin/env").whyNot(library), QString());
}

TEST_F(TrustInLibraries, OthersOfAGroupMayNotWrite)
{
    constexpr gid_t Others = 4242;
    if (chown(qPrintable(library), gid_t(-1), Others) != 0)
        GTEST_SKIP() << "only root can give a file to a group";
    EXPECT_EQ(whyNot(), QString());
    mode(library, 0664);
    EXPECT_TRUE(whyNot().startsWith("other users")) << qPrintable(whyNot());
    // As for a program that the same group may replace.
    const QString program = root() + "/program/program";
    ASSERT_EQ(chown(qPrintable(program), gid_t(-1), Others), 0);
    mode(program, 0775);
    EXPECT_EQ(LibraryTrust(geteuid(), program).whyNot(library), QString());
}

TEST_F(TrustInLibraries, WhatBelongsToAnotherUserIsNotLoaded)
{
    constexpr uid_t Other = 4242;
    if (chown(qPrintable(library), Other, gid_t(-1)) != 0)
        GTEST_SKIP() << "only root can give a file away";
    EXPECT_TRUE(whyNot().startsWith("it belongs to user 4242,")) << qPrintable(whyNot());
    EXPECT_EQ(LibraryTrust(Other, root() + "/program/program").whyNot(library), QString());
    EXPECT_TRUE(PluginLibrary::whyNot(library).startsWith("it belongs to user 4242,"));
    ASSERT_EQ(chown(qPrintable(library), geteuid(), gid_t(-1)), 0);
    ASSERT_EQ(chown(qPrintable(root() + "/folder"), Other, gid_t(-1)), 0);
    EXPECT_TRUE(whyNot().contains("its folder “" + root() + "/folder” belongs to user 4242"))
        << qPrintable(whyNot());
}

// The owner of the program is trusted with its code already.
TEST_F(TrustInLibraries, TheProgramsOwnerIsTrusted)
{
    constexpr uid_t Other = 4242;
    const QString program = root() + "/program/program";
    if (chown(qPrintable(program), Other, gid_t(-1)) != 0 ||
        chown(qPrintable(library), Other, gid_t(-1)) != 0)
        GTEST_SKIP() << "only root can give a file away";
    EXPECT_EQ(LibraryTrust(geteuid(), program).whyNot(library), QString());
}

TEST_F(TrustInLibraries, ALinkIsJudgedByWhatItLeadsTo)
{
    mode(root() + "/folder", 01777);
    const QString link = root() + "/folder/link.so";
    ASSERT_TRUE(QFile::link(library, link));
    EXPECT_EQ(trust().whyNot(link), QString());
    mode(library, 0666);
    EXPECT_NE(trust().whyNot(link), QString());
}

} // namespace
