// SPDX-License-Identifier: MIT
#include "document/CounterBackup.h"

#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace scopix;

namespace
{

const QByteArray Good = "<?xml version='1.0'?>\n<perfCounterModule>\n <profiles/>\n</perfCounterModule>\n";
const QByteArray Better = "<perfCounterModule><profiles><profile name='a'/></profiles></perfCounterModule>";

class CounterCopy : public testing::Test
{
protected:
    CounterCopy() { qputenv("XDG_CONFIG_HOME", folder.filePath("config").toLocal8Bit()); }
    ~CounterCopy() override { qunsetenv("XDG_CONFIG_HOME"); }
    QString path() const { return folder.filePath("PerfCounter.xml"); }
    void write(const QByteArray& content) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
};

TEST_F(CounterCopy, IsPutBackAndTheDamagedFileIsKept)
{
    write(Good);
    CounterBackup(path()).start();
    write(Good.left(40));
    CounterBackup next(path());
    EXPECT_TRUE(next.findDamage().startsWith("line ")) << qPrintable(next.findDamage());
    ASSERT_TRUE(next.hasCopy());
    EXPECT_EQ(next.restore(), "");
    EXPECT_EQ(contentOf(path()), Good);
    EXPECT_EQ(next.findDamage(), "");
    EXPECT_EQ(contentOf(folder.filePath("PerfCounter.damaged.xml")), Good.left(40));
}

TEST_F(CounterCopy, FollowsTheFile)
{
    write(Good);
    CounterBackup backup(path());
    backup.start();
    write(Better);
    const QString folderOfCopy = folder.filePath("config/scopix");
    const QStringList copies = QDir(folderOfCopy).entryList(QDir::Files);
    ASSERT_EQ(copies.size(), 1);
    const QString copy = folderOfCopy + '/' + copies[0];
    EXPECT_TRUE(waitFor([&] { return contentOf(copy) == Better; }));
}

TEST_F(CounterCopy, IsOfWhatWasWrittenLast)
{
    write(Good);
    {
        CounterBackup backup(path());
        backup.start();
        write(Better); // no turn of the event loop follows
    }
    write("");
    const CounterBackup next(path());
    EXPECT_NE(next.findDamage(), "") << "an emptied file is damaged";
    EXPECT_EQ(next.restore(), "");
    EXPECT_EQ(contentOf(path()), Better);
}

TEST_F(CounterCopy, IsNeverOfADamagedFile)
{
    write(Good);
    CounterBackup(path()).start();
    for (const QByteArray& damaged : {QByteArray(), Good.left(60), QByteArray("<html/>")}) {
        write(damaged);
        CounterBackup next(path());
        EXPECT_NE(next.findDamage(), "");
        next.start();
        EXPECT_EQ(next.restore(), "");
        EXPECT_EQ(contentOf(path()), Good);
    }
}

TEST_F(CounterCopy, OfNoFileOrOfAPipeIsNone)
{
    CounterBackup none(path());
    none.start();
    EXPECT_EQ(none.findDamage(), "");
    EXPECT_FALSE(none.hasCopy());
    ASSERT_EQ(mkfifo(path().toLocal8Bit(), 0600), 0);
    CounterBackup pipe(path());
    pipe.start();
    EXPECT_EQ(pipe.findDamage(), "");
    EXPECT_FALSE(pipe.hasCopy());
    EXPECT_NE(pipe.restore(), "");
}

} // namespace
