// SPDX-License-Identifier: MIT
#include "SpxFieldIgnoredCommand.h"
#include "SpxFieldSetDefaultCommand.h"
#include "SpxMFAddRowsCommand.h"
#include "SpxMFDeleteRowsCommand.h"
#include "SpxMFSetFieldValueCommand.h"
#include "SpxMFSetValueCommand.h"
#include "SpxMFSwapRowsCommand.h"
#include "SpxSFSetValueCommand.h"

#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFFloat.h>

#include <gtest/gtest.h>

namespace
{

std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}

// A list that records its notifications and the calls that insert and remove elements.
class WatchedList : public SoMFInt32
{
public:
    WatchedList(std::initializer_list<int> values)
    {
        setValues(std::vector<std::int32_t>(values.begin(), values.end()));
    }
    void insertSpace(int start, int count) override
    {
        calls += "insert " + std::to_string(start) + ' ' + std::to_string(count) + ';';
        SoMFInt32::insertSpace(start, count);
    }
    void deleteValues(int start, int count) override
    {
        calls += "delete " + std::to_string(start) + ' ' + std::to_string(count) + ';';
        SoMFInt32::deleteValues(start, count);
    }
    std::string calls;
};

} // namespace

// --- One value

TEST(SetValueCommand, TakesTheSavedTextOverAndUndoesToIt)
{
    SoSFFloat field;
    field.setValue(0.25F);
    SbString saved("0.25");
    field.setValue(0.5F);
    SpxSFSetValueCommand command(&field, saved);
    EXPECT_TRUE(saved.isNull());
    command.execute();
    EXPECT_EQ(textOf(field), "0.5");
    command.undo();
    EXPECT_EQ(textOf(field), "0.25");
    command.redo();
    EXPECT_EQ(textOf(field), "0.5");
}

TEST(SetValueCommand, ReadsTheFieldWhereNothingWasSaved)
{
    for (SbString saved : {SbString(), SbString("")}) {
        SoSFFloat field;
        field.setValue(0.5F);
        SpxSFSetValueCommand command(&field, saved);
        field.setValue(0.75F);
        command.execute();
        command.undo();
        EXPECT_EQ(field.getValue(), 0.5F);
    }
}

// The value that an editor wrote first is then both the old and the new one.
TEST(SetValueCommand, MadeAfterTheWriteUndoesNothing)
{
    SoSFFloat field;
    SbString nothing;
    field.setValue(0.75F);
    SpxSFSetValueCommand command(&field, nothing);
    command.execute();
    command.undo();
    EXPECT_EQ(field.getValue(), 0.75F);
}

TEST(SetValueCommand, OneSavedTextServesOneCommand)
{
    SoSFFloat field;
    SbString saved("0.25");
    field.setValue(0.5F);
    SpxSFSetValueCommand first(&field, saved);
    first.execute();
    SpxSFSetValueCommand second(&field, saved);
    field.setValue(0.75F);
    second.execute();
    second.undo();
    EXPECT_EQ(field.getValue(), 0.5F);
    first.undo();
    EXPECT_EQ(field.getValue(), 0.25F);
}

TEST(SetValueCommand, ExecuteWritesNothing)
{
    SoSFFloat field;
    SbString saved("0.25");
    SpxSFSetValueCommand command(&field, saved);
    const auto changes = field.getChangeCount();
    command.execute();
    EXPECT_EQ(field.getChangeCount(), changes);
}

TEST(SetOneOfManyCommand, TakesTheSavedTextOverAndUndoesToIt)
{
    SoMFInt32 field;
    field.setValues({1, 2, 3});
    SbString saved("2");
    field.set1Value(1, 20);
    SpxMFSetValueCommand command(&field, 1, saved);
    EXPECT_TRUE(saved.isNull());
    command.execute();
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
    command.redo();
    EXPECT_EQ(textOf(field), "[ 1, 20, 3 ]");
}

TEST(SetOneOfManyCommand, ReadsTheFieldWhereNothingWasSaved)
{
    for (SbString saved : {SbString(), SbString("")}) {
        SoMFInt32 field;
        field.setValues({1, 2, 3});
        SpxMFSetValueCommand command(&field, 2, saved);
        field.set1Value(2, 30);
        command.execute();
        command.undo();
        EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
    }
}

// Recording without undoing is what this command is for.
TEST(RecordOneOfManyCommand, HoldsTheNewValueTwice)
{
    SoMFInt32 field;
    field.setValues({1, 2, 3});
    field.set1Value(0, 10);
    SpxMFSetFieldValueCommand command(&field, 0);
    const auto changes = field.getChangeCount();
    command.execute();
    EXPECT_EQ(field.getChangeCount(), changes);
    field.set1Value(0, 99);
    command.undo();
    EXPECT_EQ(textOf(field), "[ 10, 2, 3 ]");
    field.set1Value(0, 99);
    command.redo();
    EXPECT_EQ(textOf(field), "[ 10, 2, 3 ]");
}

// --- Ignore flag and default

TEST(IgnoredCommand, SetsTheFlagAndPutsItBack)
{
    for (const bool ignored : {true, false}) {
        SoSFFloat field;
        field.setIgnored(!ignored);
        SpxFieldIgnoredCommand command(&field, ignored);
        command.execute();
        EXPECT_EQ(field.isIgnored(), ignored);
        command.undo();
        EXPECT_EQ(field.isIgnored(), !ignored);
        command.redo();
        EXPECT_EQ(field.isIgnored(), ignored);
    }
}

TEST(SetDefaultCommand, KnowsBothValuesFromItsConstruction)
{
    SoSFFloat field;
    field.setValue(0.5F);
    {
        SoSFFloat defaultField;
        defaultField.setValue(0.125F);
        SpxFieldSetDefaultCommand command(&field, &defaultField);
        defaultField.setValue(99.F);
        command.execute();
        EXPECT_EQ(field.getValue(), 0.125F);
        command.undo();
        EXPECT_EQ(field.getValue(), 0.5F);
        command.redo();
        EXPECT_EQ(field.getValue(), 0.125F);
    }
}

TEST(SetDefaultCommand, ServesListsOfAnyLength)
{
    SoMFInt32 field;
    field.setValues({1, 2, 3});
    SoMFInt32 defaultField;
    SpxFieldSetDefaultCommand command(&field, &defaultField);
    command.execute();
    EXPECT_EQ(field.getNum(), 0);
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
}

// --- Rows

TEST(AddRowsCommand, InsertsRowsAndUndoRemovesThem)
{
    WatchedList field{1, 2, 3};
    SpxMFAddRowsCommand command(&field, 1, 2);
    command.execute();
    EXPECT_EQ(textOf(field), "[ 1, 0, 0, 2, 3 ]");
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
    EXPECT_EQ(field.calls, "insert 1 2;delete 1 2;");
}

TEST(AddRowsCommand, GivesStringsTheEmptyText)
{
    SoMFString field;
    field.setValues({SbString("a"), SbString("b")});
    SpxMFAddRowsCommand command(&field, 1, 1);
    command.execute();
    ASSERT_EQ(field.getNum(), 3);
    EXPECT_EQ(field[1].str(), "");
    EXPECT_EQ(field[2].str(), "b");
}

TEST(AddRowsCommand, RedoForgetsWhatWasTypedIntoTheNewRows)
{
    SoMFInt32 field;
    field.setValues({1, 2});
    SpxMFAddRowsCommand command(&field, 1, 1);
    command.execute();
    field.set1Value(1, 77);
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2 ]");
    command.redo();
    EXPECT_EQ(textOf(field), "[ 1, 0, 2 ]");
}

TEST(AddRowsCommand, NotifiesOfAllValuesEvenForNoRows)
{
    WatchedList field{1, 2, 3};
    SpxMFAddRowsCommand command(&field, 1, 0);
    const auto changes = field.getChangeCount();
    command.execute();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
    EXPECT_EQ(field.getChangeCount(), changes + 1);
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
}

TEST(AddRowsCommand, NotifiesOfAllValuesAfterInsertion)
{
    SoMFInt32 field;
    SoMFInt32 follower;
    ASSERT_TRUE(follower.connectFrom(&field));
    SpxMFAddRowsCommand command(&field, 0, 3);
    command.execute();
    EXPECT_EQ(follower.getNum(), 3);
}

TEST(DeleteRowsCommand, UndoRestoresTheValuesInTheirPlaces)
{
    WatchedList field{1, 2, 3, 4};
    SpxMFDeleteRowsCommand command(&field, 1, 2);
    command.execute();
    EXPECT_EQ(textOf(field), "[ 1, 4 ]");
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3, 4 ]");
    command.redo();
    EXPECT_EQ(textOf(field), "[ 1, 4 ]");
    EXPECT_EQ(field.calls, "delete 1 2;insert 1 2;delete 1 2;");
}

TEST(DeleteRowsCommand, OfNoRowsOpensAndWritesNothing)
{
    SoMFInt32 field;
    field.setValues({1, 2, 3});
    SpxMFDeleteRowsCommand command(&field, 1, 0);
    const auto changes = field.getChangeCount();
    command.execute();
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
    EXPECT_EQ(field.getChangeCount(), changes);
}

TEST(SwapRowsCommand, IsItsOwnInverse)
{
    SoMFInt32 field;
    field.setValues({1, 2, 3});
    SpxMFSwapRowsCommand command(&field, 0, 2);
    command.execute();
    EXPECT_EQ(textOf(field), "[ 3, 2, 1 ]");
    command.undo();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
    command.redo();
    EXPECT_EQ(textOf(field), "[ 3, 2, 1 ]");
}

TEST(SwapRowsCommand, OfARowWithItselfWritesTheSameValueTwice)
{
    SoMFInt32 field;
    field.setValues({1, 2, 3});
    SpxMFSwapRowsCommand command(&field, 1, 1);
    const auto changes = field.getChangeCount();
    command.execute();
    EXPECT_EQ(textOf(field), "[ 1, 2, 3 ]");
    EXPECT_EQ(field.getChangeCount(), changes + 2);
}
