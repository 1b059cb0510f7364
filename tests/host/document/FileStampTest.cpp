// SPDX-License-Identifier: MIT
#include "document/FileStamp.h"
#include "document/FileWatch.h"

#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

using namespace scopix;
using Difference = FileStamp::Difference;

namespace
{

class Stamp : public testing::Test
{
protected:
    Stamp() { write("one"); }
    QString path() const { return folder.filePath("file"); }
    void write(const QByteArray& content, const QString& name = QStringLiteral("file")) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    // Another file of the same name, as editors write it.
    void replace(const QByteArray& content) const
    {
        write(content, "new");
        ASSERT_EQ(rename(folder.filePath("new").toLocal8Bit(), path().toLocal8Bit()), 0);
    }
    void touch() const
    {
        const timespec times[]{{1, 0}, {1, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, path().toLocal8Bit(), times, 0), 0);
    }

    QTemporaryDir folder;
};

TEST_F(Stamp, IsThatOfTheContent)
{
    FileStamp stamp(path());
    stamp.complete();
    EXPECT_EQ(stamp.compare(path()), Difference::None);
    touch();
    EXPECT_EQ(stamp.compare(path()), Difference::None) << "touched";
    replace("one");
    EXPECT_EQ(stamp.compare(path()), Difference::None) << "replaced by the same";
    chmod(path().toLocal8Bit(), 0600);
    EXPECT_EQ(stamp.compare(path()), Difference::None) << "another mode";
    replace("two");
    EXPECT_EQ(stamp.compare(path()), Difference::Changed) << "of the same size";
    write("one");
    EXPECT_EQ(stamp.compare(path()), Difference::None) << "as it was";
    write("three");
    EXPECT_EQ(stamp.compare(path()), Difference::Changed);
}

TEST_F(Stamp, KnowsThatAFileIsGoneOrNew)
{
    FileStamp stamp(path());
    stamp.complete();
    QFile::remove(path());
    EXPECT_EQ(stamp.compare(path()), Difference::Deleted);
    FileStamp ofNone(path());
    EXPECT_EQ(ofNone.compare(path()), Difference::None);
    write("one");
    EXPECT_EQ(ofNone.compare(path()), Difference::Changed);
    EXPECT_EQ(stamp.compare(path()), Difference::None) << "it is there again";
}

TEST_F(Stamp, WaitsForNoPipe)
{
    FileStamp stamp(path());
    stamp.complete();
    QFile::remove(path());
    ASSERT_EQ(mkfifo(path().toLocal8Bit(), 0600), 0);
    EXPECT_EQ(stamp.compare(path()), Difference::Changed);
    FileStamp ofPipe(path());
    EXPECT_EQ(ofPipe.compare(path()), Difference::None);
}

TEST_F(Stamp, WatchNoticesWhatBecomesOfAFile)
{
    FileWatch watch;
    const QSignalSpy noticed(&watch, &FileWatch::noticed);
    watch.watch(path());
    const auto isNoticed = [&](int before) { return waitFor([&] { return noticed.count() > before; }); };
    int before = noticed.count();
    write("two");
    EXPECT_TRUE(isNoticed(before)) << "written";
    before = noticed.count();
    replace("three");
    EXPECT_TRUE(isNoticed(before)) << "replaced";
    QCoreApplication::processEvents();
    before = noticed.count();
    write("four");
    EXPECT_TRUE(isNoticed(before)) << "written after it was replaced";
    before = noticed.count();
    QFile::remove(path());
    EXPECT_TRUE(isNoticed(before)) << "removed";
    QCoreApplication::processEvents();
    before = noticed.count();
    write("five");
    EXPECT_TRUE(isNoticed(before)) << "there again";
}

} // namespace
