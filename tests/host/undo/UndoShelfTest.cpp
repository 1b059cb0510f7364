// SPDX-License-Identifier: MIT
// The steps of scenes that are not edited at present.
#include "HostParts.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QUndoStack>

namespace
{

class Shelf : public testing::Test
{
protected:
    ~Shelf() override
    {
        services.clearSelection();
        services.history().clearAll();
    }
    UndoHistory& history() { return services.history(); }
    QUndoStack& stack() { return services.undoStack(); }
    void edit(SoMaterial& material, float value)
    {
        services.select(&material.transparency);
        services.executeCommand(new SetFloat(material.transparency, value));
    }

    HostServices services;
    SoRef<SoMaterial> one{new SoMaterial};
    SoRef<SoMaterial> other{new SoMaterial};
};

} // namespace

TEST_F(Shelf, TheStepsOfEachStayItsOwn)
{
    edit(*one, 0.25F);
    stack().setClean();
    edit(*one, 0.5F);
    stack().undo();
    const quint64 number = history().getNumber();
    QSignalSpy acted(&history(), &UndoHistory::acted);
    auto first = history().shelve();
    EXPECT_TRUE(first->isClean());
    EXPECT_EQ(stack().count(), 0);
    EXPECT_TRUE(stack().isClean());
    EXPECT_NE(history().getNumber(), number);
    edit(*other, 0.75F);
    acted.clear();
    const auto second = history().shelve();
    EXPECT_FALSE(second->isClean());
    history().unshelve(first);
    EXPECT_EQ(acted.count(), 0) << "nothing was edited";
    EXPECT_EQ(history().getNumber(), number);
    EXPECT_EQ(stack().index(), 1);
    EXPECT_EQ(stack().count(), 2);
    EXPECT_TRUE(stack().isClean());
    stack().redo();
    EXPECT_EQ(one->transparency.getValue(), 0.5F);
    stack().setIndex(0);
    EXPECT_EQ(one->transparency.getValue(), 0.0F);
    EXPECT_EQ(other->transparency.getValue(), 0.75F);
    first = history().shelve();
    history().unshelve(second);
    stack().undo();
    EXPECT_EQ(other->transparency.getValue(), 0.0F);
}

TEST_F(Shelf, StepsGoWithTheirNodes)
{
    edit(*one, 0.25F);
    edit(*other, 0.5F);
    services.clearSelection();
    const auto shelf = history().shelve();
    one = SoRef<SoMaterial>();
    history().unshelve(shelf);
    ASSERT_EQ(stack().count(), 1);
    EXPECT_FALSE(stack().isClean());
    stack().undo();
    EXPECT_EQ(other->transparency.getValue(), 0.0F);
}

TEST_F(Shelf, WhatWasTakenDifferentlyIsCompletedThere)
{
    services.select(&one->transparency);
    {
        const UserInput::Scope scope(history().input(), UserInput::Scope::User);
        one->transparency.setValue(0.25F);
    }
    services.clearSelection();
    const auto shelf = history().shelve();
    edit(*other, 0.5F);
    history().unrecorded([this] { one->transparency.setValue(0.125F); });
    history().completeLast(one->transparency);
    EXPECT_EQ(stack().count(), 1);
    history().unshelve(shelf);
    stack().undo();
    EXPECT_EQ(one->transparency.getValue(), 0.0F);
    stack().redo();
    EXPECT_EQ(one->transparency.getValue(), 0.125F);
}

TEST_F(Shelf, AllCanBeForgotten)
{
    edit(*one, 0.25F);
    services.clearSelection();
    const auto shelf = history().shelve();
    edit(*other, 0.5F);
    history().clearAll();
    EXPECT_FALSE(shelf->isClean()) << "the edit itself is still there";
    history().unshelve(shelf);
    EXPECT_EQ(stack().count(), 0);
    EXPECT_FALSE(stack().isClean());
}
