// SPDX-License-Identifier: MIT
#include "TableFixture.h"

#include <QClipboard>

using namespace inspector;

namespace
{

template <class Field>
class WithClipboard : public ListFixture<Field>
{
protected:
    void put(const QString& text) { QApplication::clipboard()->setText(text); }
    QString copied() { return QApplication::clipboard()->text(); }
    void copy() { this->key(Qt::Key_C, Qt::ControlModifier); }
    void paste() { this->key(Qt::Key_V, Qt::ControlModifier); }
};

class VectorClipboard : public WithClipboard<SoMFVec3f>
{
};
class TextClipboard : public WithClipboard<SoMFString>
{
};
class FloatClipboard : public WithClipboard<SoMFFloat>
{
};

} // namespace

TEST_F(VectorClipboard, CopiesTheSelectedCellsAsSpreadsheetsDo)
{
    open({SbVec3f(1, 0.1F, 3), SbVec3f(4, 5, 6)});
    select(0, 1, 1, 2);
    copy();
    EXPECT_EQ(copied(), "0.1\t3\n5\t6\n");
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorClipboard, CellsApartKeepTheirPlaces)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5, 6)});
    TableSelection selection;
    selection.add({0, 0});
    selection.add({1, 2});
    view().setSelection(selection);
    copy();
    EXPECT_EQ(copied(), "1\t\n\t6\n");
}

TEST_F(VectorClipboard, PastesABlockAsOneStep)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5, 6)});
    goTo(0, 1);
    put("10\t11\r\n12\t13\r\n");
    paste();
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1, 10, 11}, {4, 12, 13}}));
    EXPECT_EQ(host.undoCount(), 1);
    EXPECT_EQ(view().selection().cellCount(), 4) << "what was pasted is selected";
    host.undo();
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1, 2, 3}, {4, 5, 6}}));
}

TEST_F(VectorClipboard, PastingBeyondTheEndAddsRows)
{
    open({SbVec3f(1, 2, 3)});
    put("7\n8\n9\n");
    paste();
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{7, 2, 3}, {8, 0, 0}, {9, 0, 0}}));
    EXPECT_EQ(host.undoCount(), 1);
    host.undo();
    EXPECT_EQ(field.getNum(), 1);
}

TEST_F(VectorClipboard, OneCellFillsTheSelectionAndBlocksRepeat)
{
    open({SbVec3f(), SbVec3f(), SbVec3f(), SbVec3f()});
    put("5");
    select(0, 0, 3, 1);
    paste();
    EXPECT_EQ(field[3], SbVec3f(5, 5, 0));
    put("1\n2");
    select(0, 2, 3, 2);
    paste();
    EXPECT_EQ(field[2], SbVec3f(5, 5, 1));
    EXPECT_EQ(field[3], SbVec3f(5, 5, 2));
}

TEST_F(VectorClipboard, WhatDoesNotFitOrIsNoValueChangesNothing)
{
    open({SbVec3f(1, 2, 3)});
    put("1\tabc");
    paste();
    EXPECT_TRUE(message().contains("abc")) << message().toStdString();
    goTo(0, 2);
    put("1\t2");
    paste();
    EXPECT_TRUE(message().contains("columns"));
    put("");
    paste();
    EXPECT_FALSE(message().isEmpty());
    EXPECT_EQ(field[0], SbVec3f(1, 2, 3));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorClipboard, TakesValuesWrittenAsText)
{
    open({SbVec3f(), SbVec3f()});
    put("[ 1 2 3,\n 4 5 6 ]");
    paste();
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1, 2, 3}, {4, 5, 6}}));
    put("[ 7 8 9, 1 1 1 ]");
    paste();
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{7, 8, 9}, {1, 1, 1}}));
    goTo(0, 0);
    put("2 3 4");
    paste();
    EXPECT_EQ(field[0], SbVec3f(2, 3, 4));
}

TEST_F(VectorClipboard, RowsAreInsertedByPastingThemAsNew)
{
    open({SbVec3f(1, 2, 3), SbVec3f(4, 5, 6)});
    goTo(1, 0);
    put("7\t8\t9\n");
    key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1, 2, 3}, {7, 8, 9}, {4, 5, 6}}));
    EXPECT_EQ(host.undoCount(), 1);
}

TEST_F(FloatClipboard, CutLeavesZerosAndOneStep)
{
    open({1, 2, 3});
    select(0, 0, 1, 0);
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(copied(), "1\n2\n");
    EXPECT_EQ(values(), (std::vector<float>{0, 0, 3}));
    EXPECT_EQ(host.undoCount(), 1);
}

TEST_F(FloatClipboard, PastesIntoFilteredRowsOnlyWhatIsShown)
{
    open({1, 9, 2, 8});
    runLine(ListTable::Line::Filter, "x > 5");
    EXPECT_EQ(view().rows().count(), 2);
    view().setFocus();
    goTo(0, 0);
    put("20\n30");
    paste();
    EXPECT_EQ(values(), (std::vector<float>{1, 20, 2, 30}));
    goTo(1, 0);
    paste();
    EXPECT_EQ(values(), (std::vector<float>{1, 20, 2, 30})) << "nothing is added among filtered rows";
    EXPECT_FALSE(message().isEmpty());
}

TEST_F(TextClipboard, EveryTextComesBackAsItWas)
{
    open({"tab\there", "two\nlines", "\"quoted\"", "", "plain", "last"});
    const std::vector<SbString> before = values();
    key(Qt::Key_A, Qt::ControlModifier);
    copy();
    trigger("Clear Cells");
    EXPECT_EQ(field[0], SbString(""));
    paste();
    EXPECT_EQ(values(), before);
}

constexpr int Many = 3'000'000; // take longer than a dialog waits, on any machine

TEST_F(VectorClipboard, ALongPasteCanBeCancelled)
{
    open({SbVec3f(1, 2, 3)});
    put(QStringLiteral("4\t5\t6\n").repeated(Many));
    cancelSoon();
    goTo(0, 0);
    paste();
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1, 2, 3}}));
    trigger("Paste as New Rows");
    EXPECT_EQ(values(), (std::vector<SbVec3f>{{1, 2, 3}}));
    EXPECT_EQ(host.undoCount(), 0);
    EXPECT_EQ(message(), QString());
}

TEST_F(VectorClipboard, ALongCopyThatIsCancelledLeavesTheClipboard)
{
    field.setNum(Many);
    open();
    put("untouched");
    select(0, 0, Many - 1, 2);
    cancelSoon();
    copy();
    EXPECT_EQ(copied(), "untouched");
}
