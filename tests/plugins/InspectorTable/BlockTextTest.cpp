// SPDX-License-Identifier: MIT
#include "table/BlockText.h"

#include <gtest/gtest.h>

#include <random>

using namespace inspector;

namespace
{

BlockText::Rows parse(const QString& text, QChar separator)
{
    BlockText::Rows rows;
    BlockText::Reader reader(separator, [&rows](const QStringList& row) {
        rows.push_back(row);
        return true;
    });
    reader.feed(text);
    reader.finish();
    return rows;
}

QString written(const BlockText::Rows& rows, QChar separator)
{
    QString text;
    for (const QStringList& row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            if (i > 0)
                text += separator;
            BlockText::appendCell(text, row[i], separator);
        }
        text += '\n';
    }
    return text;
}

} // namespace

TEST(BlockText, ReadsWhatSpreadsheetsWrite)
{
    const BlockText::Rows rows = parse("1\t2\r\n\"a\tb\"\t\"say \"\"hi\"\"\"\r\n\tlast", '\t');
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], (QStringList{"1", "2"}));
    EXPECT_EQ(rows[1], (QStringList{"a\tb", "say \"hi\""}));
    EXPECT_EQ(rows[2], (QStringList{"", "last"}));
}

TEST(BlockText, AQuoteInsideOfACellIsPartOfIt)
{
    EXPECT_EQ(parse("5\" pipe\tx", '\t').front(), (QStringList{"5\" pipe", "x"}));
}

TEST(BlockText, LinesEndInAnyWay)
{
    EXPECT_EQ(parse("a\nb\rc\r\nd", ',').size(), 4U);
    EXPECT_EQ(parse("a\n\nb\n", ',').size(), 3U);
    EXPECT_EQ(parse("", ',').size(), 0U);
}

TEST(BlockText, WhatIsWrittenIsReadBack)
{
    std::mt19937 random(3);
    const QString letters = "a,\"\n\r\t; 1";
    for (int round = 0; round < 500; ++round) {
        BlockText::Rows rows;
        const int columns = 1 + int(random() % 3);
        for (int row = 0; row < 4; ++row) {
            QStringList cells;
            for (int column = 0; column < columns; ++column) {
                QString cell = "x";
                for (auto i = random() % 6; i > 0; --i)
                    cell += letters[int(random() % unsigned(letters.size()))];
                cells.append(cell);
            }
            rows.push_back(cells);
        }
        const QChar separator = round % 2 ? ',' : '\t';
        ASSERT_EQ(parse(written(rows, separator), separator), rows);
    }
}

TEST(BlockText, PiecesGiveTheSameRowsAsTheWhole)
{
    const QString text = "1,\"a\"\"b\"\r\n\"x\r\ny\",2\r\n";
    for (int size = 1; size < text.size(); ++size) {
        BlockText::Rows rows;
        BlockText::Reader reader(',', [&](const QStringList& row) {
            rows.push_back(row);
            return true;
        });
        for (int at = 0; at < text.size(); at += size)
            reader.feed(text.mid(at, size));
        reader.finish();
        ASSERT_EQ(rows, parse(text, ',')) << "in pieces of " << size;
    }
}

TEST(BlockText, ARefusedRowEndsTheReading)
{
    int taken = 0;
    BlockText::Reader reader(',', [&](const QStringList&) { return ++taken < 2; });
    EXPECT_FALSE(reader.feed("1\n2\n3\n4\n"));
    EXPECT_EQ(taken, 2);
    EXPECT_EQ(reader.line(), 2);
}
