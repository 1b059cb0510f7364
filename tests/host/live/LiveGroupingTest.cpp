// SPDX-License-Identifier: MIT
// Acts on the structure of a running program for which it has to make nodes, or whose nodes it alone knows.
#include "LiveStructureFixture.h"

#include <algorithm>
#include <cstdlib>
#include <random>

using namespace scopix;

using Ids = std::vector<NodeId>;

namespace
{

class LiveGrouping : public LiveStructure
{
protected:
    void isAsItWas()
    {
        EXPECT_TRUE(has(1, {2, 3}));
        EXPECT_TRUE(has(2, {4}));
        EXPECT_TRUE(shows("sky", 2));
        EXPECT_TRUE(shows("earth", 1));
    }
    void chooseAbove(const char* type)
    {
        inDialog("typeChooser", [type](QDialog& dialog) {
            QTest::keyClicks(dialog.findChild<QLineEdit*>(), type);
            QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        act("Another…");
    }
};

} // namespace

TEST_F(LiveGrouping, GroupsInAGroupOfTheProgram)
{
    attachAndUnfold();
    selectAll({"earth", "mars"});
    act("Group");
    ASSERT_TRUE(has(5001, {2, 3}));
    EXPECT_TRUE(has(1, {5001}));
    EXPECT_TRUE(shows("made5001", 2));
    EXPECT_TRUE(wait([&] { return services.selectedNode() == nodeAt(row("made5001")); }));
    EXPECT_EQ(services.undoStack().undoText(), "Group 2 Nodes");
    EXPECT_EQ(services.undoStack().count(), 1);
    services.undoStack().undo();
    isAsItWas();
    EXPECT_TRUE(has(5001, {}));
    services.undoStack().redo();
    EXPECT_TRUE(has(5001, {2, 3}));
    EXPECT_TRUE(has(1, {5001}));
    EXPECT_TRUE(shows("made5001", 2));
}

TEST_F(LiveGrouping, GroupsWhatStandsInSeveralGroups)
{
    program.scene.put(1, 5, "Planet", "venus");
    attachAndUnfold();
    selectAll({"luna", "venus"});
    act("Group");
    ASSERT_TRUE(has(2, {5001}));
    EXPECT_TRUE(has(5001, {4, 5}));
    EXPECT_TRUE(has(1, {2, 3}));
    services.undoStack().undo();
    EXPECT_TRUE(has(1, {2, 3, 5}));
    EXPECT_TRUE(has(2, {4}));
}

TEST_F(LiveGrouping, GroupsBesideObjectsThatThePropertiesReferTo)
{
    program.scene.nodes[30].info = {30, "Ring", "ring", 0, 1, false};
    program.scene.property(1, "ring", live::packed(ValueKind::Object, NodeId(30)));
    attach();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(shows("sky", 3));
    selectAll({"mars"});
    act("Group");
    ASSERT_TRUE(has(5001, {3}));
    EXPECT_TRUE(has(1, {2, 5001}));
    services.undoStack().undo();
    EXPECT_TRUE(has(1, {2, 3}));
    selectAll({"ring"});
    act("Group");
    EXPECT_TRUE(isTold("Only nodes of"));
    EXPECT_TRUE(has(1, {2, 3}));
    EXPECT_TRUE(shows("sky", 3));
    EXPECT_EQ(services.undoStack().index(), 0);
}

TEST_F(LiveGrouping, SaysWhereTheProgramHasNoGroups)
{
    program.scene.addable = {"Comet", "Planet"};
    attachAndUnfold();
    selectAll({"mars"});
    act("Group");
    EXPECT_TRUE(isTold("makes no nodes of a type called “Group”"));
    selectAll({"sky"});
    act("Group");
    EXPECT_TRUE(isTold("has to stay where it is"));
    isAsItWas();
    EXPECT_EQ(services.undoStack().count(), 0);
}

TEST_F(LiveGrouping, PutsANodeAboveEach)
{
    attachAndUnfold();
    selectAll({"luna", "mars"});
    chooseAbove("planet");
    ASSERT_TRUE(has(1, {2, 5002}));
    EXPECT_TRUE(has(2, {5001}));
    EXPECT_TRUE(has(5001, {4}));
    EXPECT_TRUE(has(5002, {3}));
    EXPECT_TRUE(shows("made5002", 1));
    EXPECT_EQ(services.undoStack().undoText(), "Put Planet Above 2 Nodes");
    services.undoStack().undo();
    isAsItWas();
    services.undoStack().redo();
    EXPECT_TRUE(has(1, {2, 5002}));
    EXPECT_TRUE(has(5001, {4}));
}

TEST_F(LiveGrouping, PutsTheTypesOfTheMenuAboveAsFarAsTheProgramHasThem)
{
    attachAndUnfold();
    selectAll({"mars"});
    act("Put a Group Above");
    ASSERT_TRUE(has(5001, {3}));
    EXPECT_TRUE(has(1, {2, 5001}));
    act("Put a Switch Above");
    EXPECT_TRUE(isTold("makes no nodes of the type “Switch”"));
    EXPECT_EQ(services.undoStack().count(), 1);
}

TEST_F(LiveGrouping, PutsWhatTakesNoChildrenIntoASeparator)
{
    program.scene.addable = {"Separator", "Transform"};
    attachAndUnfold();
    selectAll({"mars"});
    act("Put a Transform Above");
    ASSERT_TRUE(has(5002, {5001, 3}));
    EXPECT_TRUE(has(1, {2, 5002}));
    services.undoStack().undo();
    isAsItWas();
}

TEST_F(LiveGrouping, PutsNothingAboveThatTakesNoChildren)
{
    attachAndUnfold();
    selectAll({"mars"});
    chooseAbove("comet");
    EXPECT_TRUE(isTold("“Comet” takes no children"));
    EXPECT_EQ(program.scene.lastMade, 5001U);
    isAsItWas();
    EXPECT_TRUE(wait([&] { return program.scene.forgotten == Ids{5001}; }));
    EXPECT_EQ(services.undoStack().count(), 0);
}

TEST_F(LiveGrouping, MakesASharedNodeUniqueAlsoWhereItsOtherPlaceIsFolded)
{
    program.scene.nodes[3].children = {4}; // mars is not unfolded
    attachAndUnfold();
    selectAll({"luna"});
    act("Make Unique");
    ASSERT_TRUE(has(2, {5001}));
    EXPECT_TRUE(has(3, {4}));
    EXPECT_TRUE(wait([&] { return row("luna again").isValid(); }));
    EXPECT_EQ(services.undoStack().count(), 1);
    services.undoStack().undo();
    EXPECT_TRUE(has(2, {4}));
    services.undoStack().redo();
    EXPECT_TRUE(has(2, {5001}));
    selectAll({"luna again"});
    act("Make Unique");
    EXPECT_TRUE(isTold("is its own already"));
}

TEST_F(LiveGrouping, UngroupsWhatIsNotUnfolded)
{
    program.scene.put(2, 5, "Moon", "moonlet");
    attach();
    ASSERT_TRUE(wait([&] { return row("sky").isValid(); }));
    ASSERT_TRUE(unfold("sky"));
    selectAll({"earth"});
    act("Ungroup");
    ASSERT_TRUE(has(1, {4, 5, 3}));
    EXPECT_TRUE(shows("sky", 3));
    EXPECT_EQ(services.undoStack().undoText(), "Ungroup “earth”");
    services.undoStack().undo();
    EXPECT_TRUE(has(1, {2, 3}));
    EXPECT_TRUE(has(2, {4, 5}));
    EXPECT_TRUE(shows("sky", 2));
    selectAll({"mars"});
    act("Ungroup");
    EXPECT_TRUE(isTold("is no group"));
}

TEST_F(LiveGrouping, TakesAllBackWhereTheProgramRefusesTheMove)
{
    program.scene.fullGroups = {5001};
    attachAndUnfold();
    selectAll({"earth", "mars"});
    act("Group");
    EXPECT_TRUE(isTold("It takes no children."));
    EXPECT_TRUE(wait([&] { return !services.undoStack().canUndo(); }));
    isAsItWas();
    EXPECT_EQ(told.filter("It takes no children.").size(), 1);
    EXPECT_EQ(program.scene.lastMade, 5001U);
}

TEST_F(LiveGrouping, TakesAMoveBackThatIsRefusedHalfway)
{
    program.scene.fullGroups = {2};
    attachAndUnfold();
    selectAll({"mars"});
    act("Into the Group Before");
    EXPECT_TRUE(isTold("It takes no children."));
    isAsItWas();
}

TEST_F(LiveGrouping, LosesNothingWhenTheProgramEndsMeanwhile)
{
    attachAndUnfold();
    selectAll({"earth", "mars"});
    program.frames.stop();
    act("Group");
    program.kill();
    told.clear();
    ASSERT_TRUE(wait([&] { return scene().getState() == LiveScene::State::Ended; }));
    EXPECT_TRUE(shows("sky", 2));
    EXPECT_TRUE(shows("earth", 1));
    EXPECT_EQ(services.undoStack().count(), 0);
    EXPECT_LE(told.size(), 1) << told.join("\n").toStdString();
    act("Group");
    EXPECT_TRUE(isTold("not attached any more"));
}

TEST_F(LiveGrouping, RandomActsAndTheirUndoLeaveTheProgramAsItWas)
{
    for (const NodeId id : {10, 11, 12})
        program.scene.put(1, id, "Planet", "p" + std::to_string(id));
    for (const NodeId id : {20, 21, 22, 23})
        program.scene.put(id % 2 == 0 ? 10 : 11, id, "Moon", "m" + std::to_string(id));
    const char* steps = std::getenv("SCOPIX_WALK_STEPS");
    const char* seed = std::getenv("SCOPIX_WALK_SEED");
    program.scene.tellsOfChildren = true;
    std::mt19937 random(seed ? static_cast<unsigned>(std::atoi(seed)) : 7);
    attachAndUnfold();
    const auto structure = [this] {
        std::map<NodeId, Ids> all;
        for (const auto& [id, node] : program.scene.nodes)
            if (!node.children.empty() && id < 5000)
                all[id] = node.children;
        return all;
    };
    const auto first = structure();
    const char* acts[] = {"Group",  "Ungroup", "Put a Group Above", "Duplicate",
                          "Delete", "Up",      "Make Unique"};
    for (int left = steps ? std::atoi(steps) : 40; left > 0; --left) {
        model().followNow();
        const QModelIndex top = row("sky");
        std::vector<QModelIndex> rows;
        for (int i = 0; i < model().rowCount(top); ++i) {
            const QModelIndex each = model().index(i, 0, top);
            rows.push_back(each);
            for (int k = 0; k < model().rowCount(each) && k < 2; ++k)
                rows.push_back(model().index(k, 0, each));
        }
        if (rows.empty())
            break;
        SoPath path;
        path.append(model().nodeAt(top.parent()));
        path.append(model().nodeAt(top));
        const QModelIndex picked = rows[random() % rows.size()];
        if (picked.parent() != top)
            path.append(model().nodeAt(picked.parent()));
        path.append(model().nodeAt(picked));
        services.selectPaths({path});
        const int before = services.undoStack().index();
        told.clear();
        act(acts[random() % std::size(acts)]);
        ASSERT_TRUE(wait([&] { return services.undoStack().index() != before || !told.isEmpty(); }));
        settle();
        bool isAnswered = false; // behind all that has been asked
        scene().getLink().node(1, [&](const auto&) { isAnswered = true; });
        ASSERT_TRUE(wait([&] { return isAnswered; }));
    }
    EXPECT_GT(services.undoStack().index(), 0);
    told.clear();
    while (services.undoStack().canUndo())
        services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return structure() == first; }))
        << services.undoStack().index() << " " << told.join(" ").toStdString();
}
