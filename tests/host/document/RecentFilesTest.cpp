// SPDX-License-Identifier: MIT
#include "document/RecentFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace scopix;

namespace
{

class Recent : public testing::Test
{
protected:
    QTemporaryDir folder;
    RecentFiles files{folder.filePath("window.ini")};
};

TEST_F(Recent, ListsTheNewestFirstAndOnce)
{
    files.add("/a, b.xsg");
    files.add("/c.xsg");
    files.add("/a, b.xsg");
    EXPECT_EQ(files.list(), QStringList({"/a, b.xsg", "/c.xsg"}));
}

TEST_F(Recent, AreKeptForTheNextSessionAndSharedWithOthers)
{
    RecentFiles other(folder.filePath("window.ini"));
    files.add("/a.xsg");
    other.add("/b.xsg");
    EXPECT_EQ(files.list(), QStringList({"/b.xsg", "/a.xsg"}));
}

TEST_F(Recent, KeepsTheTenLatest)
{
    for (int i = 0; i < 15; ++i)
        files.add(QString("/%1.xsg").arg(i));
    EXPECT_EQ(files.list().size(), 10);
    EXPECT_EQ(files.list().first(), "/14.xsg");
}

TEST_F(Recent, StoresAbsolutePaths)
{
    files.add("here.xsg");
    EXPECT_EQ(files.list(), QStringList{QDir::current().absoluteFilePath("here.xsg")});
}

TEST_F(Recent, RemovesAnEntry)
{
    files.add("/a.xsg");
    files.add("/b.xsg");
    files.remove("/b.xsg");
    EXPECT_EQ(files.list(), QStringList{"/a.xsg"});
    files.clear();
    EXPECT_TRUE(files.list().isEmpty());
}

} // namespace
