// SPDX-License-Identifier: MIT
// Edits of the structure that a running program refuses in part, once others were made after them.
#include "LiveStructureFixture.h"

#include <xsg/fields/SoSFDouble.h>

using namespace scopix;

using Ids = std::vector<NodeId>;

namespace
{

class LiveRefusal : public LiveStructure
{
protected:
    // Out of the sky it goes, but not into the earth; the program does not answer before answer().
    void moveMarsIntoTheFullEarth()
    {
        program.scene.fullGroups = {2};
        attachAndUnfold();
        ASSERT_TRUE(select("mars"));
        program.frames.stop();
        act("Into the Group Before");
        settle();
        EXPECT_EQ(services.undoStack().index(), 1);
        EXPECT_EQ(model().rowCount(row("earth")), 2);
    }
    void actOn(const char* name, const char* text)
    {
        selectAll({name});
        act(text);
        settle();
    }
    void answer() { program.frames.start(0); }
    // Behind all that has been asked, and what came of it.
    void hearAll()
    {
        for (int round = 0; round < 3; ++round) {
            bool isAnswered = false;
            scene().getLink().node(1, [&](const auto&) { isAnswered = true; });
            ASSERT_TRUE(wait([&] { return isAnswered; }));
        }
    }
    void isAsItWas()
    {
        EXPECT_TRUE(isTold("It takes no children."));
        EXPECT_TRUE(has(1, {2, 3}));
        EXPECT_TRUE(has(2, {4}));
        hearAll();
        EXPECT_TRUE(has(1, {2, 3}));
        EXPECT_TRUE(has(2, {4}));
        EXPECT_TRUE(shows("sky", 2));
        EXPECT_TRUE(shows("earth", 1));
    }
};

} // namespace

TEST_F(LiveRefusal, IsTakenBackWithTheEditAfterIt)
{
    moveMarsIntoTheFullEarth();
    actOn("luna", "Delete");
    EXPECT_EQ(services.undoStack().index(), 2);
    answer();
    isAsItWas();
    EXPECT_EQ(services.undoStack().index(), 0);
    EXPECT_EQ(told.filter("What was done after that is undone too").size(), 1);
    program.scene.fullGroups.clear();
    services.undoStack().redo();
    EXPECT_TRUE(has(1, {2}));
    EXPECT_TRUE(has(2, {4, 3}));
    services.undoStack().redo();
    EXPECT_TRUE(has(2, {3}));
}

TEST_F(LiveRefusal, IsTakenBackWithTheValuesAfterIt)
{
    moveMarsIntoTheFullEarth();
    auto& edited = field<SoSFDouble>(*nodeAt(row("mars")), "radius");
    edit(edited, [&] { edited.setValue(7); });
    settle();
    EXPECT_EQ(services.undoStack().index(), 2);
    answer();
    isAsItWas();
    EXPECT_EQ(services.undoStack().index(), 0);
    EXPECT_TRUE(wait([&] { return radius() == 3.5; }));
    EXPECT_EQ(program.scene.writes, 2);
    services.undoStack().redo();
    EXPECT_TRUE(isTold("It takes no children."));
}

TEST_F(LiveRefusal, OfWhatWasUndoneMeanwhileLeavesNothing)
{
    moveMarsIntoTheFullEarth();
    services.undoStack().undo();
    settle();
    answer();
    isAsItWas();
    EXPECT_EQ(services.undoStack().index(), 0);
    EXPECT_TRUE(told.filter("undone too").isEmpty());
}

TEST_F(LiveRefusal, OfALaterEditLeavesTheOneBefore)
{
    program.scene.fullGroups = {2};
    attachAndUnfold();
    program.frames.stop();
    actOn("luna", "Delete");
    actOn("mars", "Into the Group Before");
    EXPECT_EQ(services.undoStack().index(), 2);
    answer();
    EXPECT_TRUE(isTold("It takes no children."));
    EXPECT_TRUE(wait([&] { return services.undoStack().index() == 1; }));
    hearAll();
    EXPECT_TRUE(has(1, {2, 3}));
    EXPECT_TRUE(has(2, {}));
    EXPECT_TRUE(shows("sky", 2));
    program.scene.fullGroups.clear();
    services.undoStack().undo();
    EXPECT_TRUE(has(2, {4}));
}

TEST_F(LiveRefusal, ComesBeforeTheProgramIsAskedForNewNodes)
{
    moveMarsIntoTheFullEarth();
    selectAll({"earth"});
    press(Qt::Key_D);
    settle();
    answer();
    EXPECT_TRUE(isTold("It takes no children."));
    ASSERT_TRUE(has(1, {2, 5001, 3}));
    EXPECT_TRUE(has(2, {4}));
    ASSERT_TRUE(wait([&] { return services.undoStack().undoText().startsWith("Duplicate"); }));
    EXPECT_EQ(services.undoStack().index(), 1);
    services.undoStack().undo();
    isAsItWas();
}

// Where the program has its new node is known before it is told of anything else.
TEST_F(LiveRefusal, EditsWaitWhileTheProgramMakesNodes)
{
    attachAndUnfold();
    program.frames.stop();
    selectAll({"earth"});
    press(Qt::Key_D);
    actOn("mars", "Up");
    EXPECT_EQ(services.undoStack().index(), 1);
    answer();
    ASSERT_TRUE(wait([&] { return services.undoStack().index() == 2; }));
    hearAll();
    Ids shown;
    for (int i = 0; i < model().rowCount(row("sky")); ++i)
        shown.push_back(nodeAt(model().index(i, 0, row("sky")))->getId());
    EXPECT_EQ(childrenOf(1), shown);
    EXPECT_EQ(shown.size(), 3U);
    services.undoStack().undo();
    EXPECT_TRUE(has(1, {3, 2}));
    services.undoStack().undo();
    EXPECT_TRUE(has(1, {2, 3}));
    EXPECT_TRUE(shows("sky", 2));
}

TEST_F(LiveRefusal, EndsWithTheProgram)
{
    moveMarsIntoTheFullEarth();
    actOn("luna", "Delete");
    program.kill();
    ASSERT_TRUE(wait([&] { return scene().getState() == LiveScene::State::Ended; }));
    settle();
    EXPECT_TRUE(told.filter("refused").isEmpty()) << told.join("\n").toStdString();
}

TEST_F(LiveRefusal, NeverHeardOfKeepsNoNode)
{
    {
        HostServices others;
        MainWindow another(others, notifier);
        another.openLive({{}, program.socket(), {}});
        ASSERT_TRUE(wait([] { return SoFieldContainer::getByName("sky") != nullptr; }));
        program.frames.stop();
        others.selectNodes({SoFieldContainer::getByName("sky")});
        settle();
    }
    EXPECT_EQ(SoFieldContainer::getByName("sky"), nullptr);
}
