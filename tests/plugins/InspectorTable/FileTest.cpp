// SPDX-License-Identifier: MIT
#include "TableFixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace inspector;

namespace
{

template <class Field>
class WithFiles : public ListFixture<Field>
{
protected:
    QString path(const char* name = "list.csv") { return m_folder.filePath(name); }
    void put(const QByteArray& bytes)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray content()
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

class VectorFile : public WithFiles<SoMFVec3f>
{
};
class TextFile : public WithFiles<SoMFString>
{
};

} // namespace

TEST_F(VectorFile, WhatIsWrittenIsReadBackToTheSameBits)
{
    open({SbVec3f(0.1F, -0.0F, 3e-38F), SbVec3f(1, 2, 3)});
    ASSERT_TRUE(table().file().writeTo(path()));
    EXPECT_EQ(content(), "x,y,z\n0.1,-0,3e-38\n1,2,3\n");
    const std::vector<SbVec3f> before = values();
    field.setNum(0);
    TestHost::pump();
    ASSERT_TRUE(table().file().readFrom(path())) << message().toStdString();
    EXPECT_EQ(values(), before);
    EXPECT_TRUE(std::signbit(field[0][1]));
    EXPECT_EQ(host.undoCount(), 1);
    host.undo();
    EXPECT_EQ(field.getNum(), 0);
}

TEST_F(VectorFile, OtherSeparatorsAndHeadingsAreRead)
{
    open({});
    put("\xef\xbb\xbfnorth;east;up\r\n1,5;2;3\r\n\r\n4;5;6");
    ASSERT_TRUE(table().file().readFrom(path())) << message().toStdString();
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1.5F, 2, 3}, {4, 5, 6}}));
    put("1\t2\t3\n");
    ASSERT_TRUE(table().file().readFrom(path()));
    EXPECT_EQ(field.getNum(), 1);
}

TEST_F(VectorFile, ABadFileIsRefusedWithItsLineAndChangesNothing)
{
    open({SbVec3f(1, 2, 3)});
    put("x,y,z\n1,2,3\n1,oops,3\n");
    EXPECT_FALSE(table().file().readFrom(path()));
    EXPECT_TRUE(message().contains("line 3") && message().contains("oops")) << message().toStdString();
    put("1,2,3\n4,5\n");
    EXPECT_FALSE(table().file().readFrom(path()));
    EXPECT_TRUE(message().contains("line 2")) << message().toStdString();
    EXPECT_FALSE(table().file().readFrom(path("missing.csv")));
    EXPECT_TRUE(message().contains("missing.csv"));
    EXPECT_FALSE(table().file().readFrom("/"));
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1, 2, 3}}));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorFile, AFileThatCannotBeWrittenIsSaid)
{
    open({SbVec3f(1, 2, 3)});
    EXPECT_FALSE(table().file().writeTo("/nowhere/at/all.csv"));
    EXPECT_TRUE(message().contains("all.csv"));
}

TEST_F(VectorFile, WhatIsNotOursIsNotReplaced)
{
    open({SbVec3f(1, 2, 3)});
    const auto isRefused = [this](const QString& path, const char* why) {
        return !table().file().writeTo(path) && message().contains(why);
    };
    QFile picture(path("picture.png"));
    ASSERT_TRUE(picture.open(QIODevice::WriteOnly));
    EXPECT_TRUE(isRefused(path("picture.png"), ".csv")) << message().toStdString();
    ASSERT_TRUE(QFile::link(path("picture.png"), path("link.csv")));
    EXPECT_TRUE(isRefused(path("link.csv"), ".csv")) << message().toStdString();
    ASSERT_TRUE(QDir().mkdir(path("folder.csv")));
    EXPECT_TRUE(isRefused(path("folder.csv"), "folder.csv"));
    put("mine");
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner));
    EXPECT_TRUE(isRefused(path(), "list.csv")) << message().toStdString();
    EXPECT_EQ(content(), "mine");
    EXPECT_FALSE(table().file().readFrom(path("folder.csv")));
    EXPECT_TRUE(message().contains("folder.csv"));
}

TEST_F(VectorFile, TabsSeparateWhereTheNameSaysSo)
{
    open({SbVec3f(1, 2, 3)});
    ASSERT_TRUE(table().file().writeTo(path("list.tsv")));
    QFile file(path("list.tsv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "x\ty\tz\n1\t2\t3\n");
}

constexpr int Many = 3'000'000; // take longer than a dialog waits, on any machine

TEST_F(VectorFile, ALongReadingOrWritingCanBeCancelled)
{
    field.setNum(Many);
    open();
    put("untouched");
    cancelSoon();
    EXPECT_FALSE(table().file().writeTo(path()));
    EXPECT_EQ(content(), "untouched");
    put(QByteArray("1,2,3\n").repeated(Many));
    field.set1Value(0, SbVec3f(7, 7, 7));
    EXPECT_FALSE(table().file().readFrom(path()));
    EXPECT_EQ(field[0], SbVec3f(7, 7, 7));
    EXPECT_EQ(host.undoCount(), 0);
    select(0, 0, Many - 1, 2);
    runLine(ListTable::Line::Calculate, "x+1");
    EXPECT_EQ(field[0], SbVec3f(7, 7, 7)) << "so can a formula";
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorFile, AListThatChangesMeanwhileIsNotOverwritten)
{
    field.setNum(Many);
    open();
    select(0, 0, Many - 1, 2);
    auto* timer = new QTimer(&view());
    QObject::connect(timer, &QTimer::timeout, [this] {
        if (QApplication::activeModalWidget())
            field.set1Value(0, SbVec3f(9, 9, 9));
    });
    timer->start(0);
    runLine(ListTable::Line::Calculate, "x+1");
    EXPECT_EQ(field[0], SbVec3f(9, 9, 9));
    EXPECT_EQ(field[1], SbVec3f(0, 0, 0));
    EXPECT_FALSE(message().isEmpty());
}

TEST_F(TextFile, TextsWithSeparatorsAndLinesComeBack)
{
    open({"a,b", "two\nlines", "say \"hi\"", "\u00fcber", "value"});
    const std::vector<SbString> before = values();
    ASSERT_TRUE(table().file().writeTo(path()));
    field.setNum(0);
    ASSERT_TRUE(table().file().readFrom(path()));
    EXPECT_EQ(values(), before);
}
