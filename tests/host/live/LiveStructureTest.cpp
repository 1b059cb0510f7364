// SPDX-License-Identifier: MIT
// New nodes in a running program, what is let go of it again, many edits at once, and its frames.
#include "LiveStructureFixture.h"

#include "live/LivePicture.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/fields/SoSFDouble.h>
#include <xsg/frames/SoFrameLog.h>

#include <QApplication>
#include <QClipboard>

using namespace scopix;

namespace
{

// Writes other values, all at once.
class WriteAll : public SpxCommand, public SpxEditedFields
{
public:
    WriteAll(std::vector<SoField*> fields, double value)
        : m_fields(std::move(fields))
        , m_value(value)
    {
    }
    void execute() override { redo(); }
    void undo() override {}
    void redo() override
    {
        for (SoField* field : m_fields)
            static_cast<SoSFDouble*>(field)->setValue(m_value);
    }
    std::vector<SoField*> editedFields() const override { return m_fields; }

private:
    std::vector<SoField*> m_fields;
    double m_value;
};

} // namespace

TEST_F(LiveStructure, AddsNodesOfTypesThatTheProgramOffers)
{
    attachAndUnfold();
    ASSERT_TRUE(select("earth"));
    add("comet");
    ASSERT_TRUE(wait([&] { return childrenOf(2) == (std::vector<NodeId>{4, 5001}); }));
    ASSERT_TRUE(wait([&] { return row("made5001").isValid(); }));
    EXPECT_EQ(model().data(row("made5001").siblingAtColumn(SceneTreeModel::TypeColumn)).toString(), "Comet");
    EXPECT_EQ(services.undoStack().count(), 1);
    EXPECT_EQ(services.undoStack().undoText(), "Add Comet");
    EXPECT_TRUE(wait([&] { return services.selectedNode() == nodeAt(row("made5001")); }));
    services.undoStack().undo();
    ASSERT_TRUE(wait([&] { return childrenOf(2) == std::vector<NodeId>{4}; }));
    EXPECT_FALSE(row("made5001").isValid());
    services.undoStack().redo();
    ASSERT_TRUE(wait([&] { return childrenOf(2) == (std::vector<NodeId>{4, 5001}); }));
    EXPECT_TRUE(wait([&] { return model().rowCount(row("earth")) == 2; }));
}

TEST_F(LiveStructure, AddsBehindWhatHoldsNoChildren)
{
    attachAndUnfold();
    ASSERT_TRUE(select("luna"));
    add("moon");
    EXPECT_TRUE(wait([&] { return childrenOf(2) == (std::vector<NodeId>{4, 5001}); }));
}

TEST_F(LiveStructure, AddsNothingThatTheProgramRefuses)
{
    program.scene.refused.insert("Comet");
    attachAndUnfold();
    ASSERT_TRUE(select("earth"));
    add("comet");
    EXPECT_TRUE(isTold("It has enough of them."));
    EXPECT_EQ(services.undoStack().count(), 0);
    EXPECT_EQ(model().rowCount(row("earth")), 1);
}

TEST_F(LiveStructure, DuplicatesInTheProgramWithTheirValues)
{
    attachAndUnfold();
    ASSERT_TRUE(select("mars"));
    press(Qt::Key_D);
    ASSERT_TRUE(wait([&] { return childrenOf(1) == (std::vector<NodeId>{2, 3, 5001}); }));
    ASSERT_TRUE(wait([&] { return row("mars again").isValid(); }));
    LiveNode* copy = select("mars again");
    ASSERT_TRUE(copy);
    EXPECT_EQ(field<SoSFDouble>(*copy, "radius").getValue(), 3.5);
    EXPECT_EQ(services.undoStack().count(), 1);
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return childrenOf(1) == (std::vector<NodeId>{2, 3}); }));
}

TEST_F(LiveStructure, WhatIsAddedWhileAnotherSceneShowsIsAStepOfItsOwn)
{
    window.getFiles().openInTab(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
    ASSERT_TRUE(wait([this] { return !done.isEmpty(); }));
    OpenScenes& scenes = window.getFiles().getScenes();
    attachAndUnfold();
    ASSERT_TRUE(select("mars"));
    program.frames.stop(); // it answers once the other scene shows
    press(Qt::Key_D);
    scenes.bringToFront(*scenes.getAll().front());
    const int rows = model().rowCount(model().index(0, 0));
    program.frames.start(0);
    ASSERT_TRUE(wait([&] { return childrenOf(1) == (std::vector<NodeId>{2, 3, 5001}); }));
    EXPECT_TRUE(wait([&] { return SoFieldContainer::getByName("mars again") != nullptr; }));
    EXPECT_EQ(services.undoStack().count(), 0);
    EXPECT_TRUE(services.getSelectedNodes().isEmpty());
    EXPECT_EQ(model().rowCount(model().index(0, 0)), rows);
    scenes.bringToFront(*scenes.getAll().back());
    ASSERT_TRUE(wait([&] { return services.undoStack().count() == 1; }));
    EXPECT_TRUE(wait([&] { return row("mars again").isValid(); }));
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return childrenOf(1) == (std::vector<NodeId>{2, 3}); }));
}

TEST_F(LiveStructure, DuplicatesSeveralAsOneStep)
{
    attachAndUnfold();
    QList<SoPath> paths;
    for (const char* name : {"earth", "mars"}) {
        paths.append(SoPath());
        for (const QModelIndex& index : {row("sky").parent(), row("sky"), row(name)})
            paths.back().append(model().nodeAt(index));
    }
    services.selectPaths(paths);
    press(Qt::Key_D);
    ASSERT_TRUE(wait([&] { return childrenOf(1) == (std::vector<NodeId>{2, 5001, 3, 5002}); }));
    EXPECT_TRUE(wait([&] { return model().rowCount(row("sky")) == 4; }));
    EXPECT_EQ(services.undoStack().count(), 1);
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return childrenOf(1) == (std::vector<NodeId>{2, 3}); }));
}

TEST_F(LiveStructure, PastesCopiesOfItsOwnNodesOnly)
{
    attachAndUnfold();
    ASSERT_TRUE(select("mars"));
    press(Qt::Key_C);
    ASSERT_TRUE(select("earth"));
    press(Qt::Key_V);
    ASSERT_TRUE(wait([&] { return childrenOf(2) == (std::vector<NodeId>{4, 5001}); }));
    ASSERT_TRUE(wait([&] { return services.undoStack().count() == 1; }));
    QGuiApplication::clipboard()->setText("Sphere {}");
    press(Qt::Key_V);
    EXPECT_TRUE(isTold("Only nodes that were copied from this program"));
    EXPECT_EQ(services.undoStack().count(), 1);
}

TEST_F(LiveStructure, SaysWhyTheProgramCopiesNothing)
{
    program.scene.refused.insert("copies");
    attachAndUnfold();
    ASSERT_TRUE(select("mars"));
    press(Qt::Key_D);
    EXPECT_TRUE(isTold("It is the only one of its kind."));
    EXPECT_EQ(services.undoStack().count(), 0);
}

TEST_F(LiveStructure, LetsTheProgramForgetWhatCannotComeBack)
{
    attachAndUnfold();
    ASSERT_TRUE(select("mars"));
    press(Qt::Key_D);
    ASSERT_TRUE(wait([&] { return services.undoStack().count() == 1; }));
    services.undoStack().undo(); // while the program still tells of what it has made
    ASSERT_TRUE(wait([&] { return childrenOf(1) == (std::vector<NodeId>{2, 3}); }));
    EXPECT_TRUE(program.scene.forgotten.empty());
    services.undoStack().clear();
    EXPECT_TRUE(wait([&] { return program.scene.forgotten == std::vector<NodeId>{5001}; }));
}

TEST_F(LiveStructure, KeepsNothingOfWhatIsFolded)
{
    for (NodeId id = 100; id < 300; ++id)
        program.scene.put(2, id, "Stone");
    attach();
    ASSERT_TRUE(wait([&] { return row("sky").isValid(); }));
    const std::size_t atFirst = scene().getNodeCount();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(unfold("earth"));
    ASSERT_TRUE(wait([&] { return model().rowCount(row("earth")) == 201; }));
    EXPECT_EQ(scene().getNodeCount(), atFirst + 203);
    window.getTree().collapse(row("earth"));
    EXPECT_TRUE(wait([&] { return scene().getNodeCount() == atFirst + 2; }));
    EXPECT_TRUE(wait([&] { return program.scene.watched.count(2) == 0; }));
    EXPECT_TRUE(model().hasChildren(row("earth")));
    ASSERT_TRUE(unfold("earth"));
    EXPECT_TRUE(wait([&] { return scene().getNodeCount() == atFirst + 203; }));
    window.getTree().collapse(row("sky"));
    EXPECT_TRUE(wait([&] { return scene().getNodeCount() == atFirst; }));
}

TEST_F(LiveStructure, KeepsWhatWasEditedWhenItIsFolded)
{
    attachAndUnfold();
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(7); });
    ASSERT_TRUE(wait([&] { return radius() == 7; }));
    services.clearSelection();
    const std::size_t before = scene().getNodeCount();
    window.getTree().collapse(row("sky"));
    EXPECT_TRUE(wait([&] { return scene().getNodeCount() == before - 1; })) << "the moon alone";
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return radius() == 3.5; }));
}

TEST_F(LiveStructure, AnswersWhileManyEditsAreOnTheirWay)
{
    constexpr int Nodes = 100;
    constexpr int Properties = 100;
    program.scene.put(0, 10, "Belt", "belt");
    for (int i = 0; i < Nodes; ++i) {
        program.scene.put(10, 1000 + static_cast<NodeId>(i), "Stone");
        for (int k = 0; k < Properties; ++k)
            program.scene.property(1000 + static_cast<NodeId>(i), "p" + std::to_string(k), number(1));
    }
    attach();
    ASSERT_TRUE(wait([&] { return row("belt").isValid(); }));
    ASSERT_TRUE(unfold("belt"));
    ASSERT_TRUE(wait([&] { return model().rowCount(row("belt")) == Nodes; }));
    std::vector<SoField*> fields;
    int numShown = 0;
    for (int i = 0; i < Nodes; ++i)
        scene().whenShown(*nodeAt(model().index(i, 0, row("belt"))), [&] { ++numShown; });
    ASSERT_TRUE(wait([&] { return numShown == Nodes; }));
    for (int i = 0; i < Nodes; ++i) {
        for (const auto& each : nodeAt(model().index(i, 0, row("belt")))->getProperties())
            fields.push_back(each->field.get());
    }
    ASSERT_EQ(fields.size(), std::size_t(Nodes * Properties));
    const auto hasAll = [&](double value) {
        return std::all_of(program.scene.nodes.begin(), program.scene.nodes.end(), [&](const auto& each) {
            return each.first < 1000 || each.second.values.at("p99") == number(value);
        });
    };
    static_cast<SpxSceneServices&>(services).executeCommand(new WriteAll(fields, 2), "Write");
    program.scene.writes = 0;
    ASSERT_TRUE(wait([&] { return program.scene.writes >= Nodes * Properties || hasAll(2); }));

    program.server->setBudget(0); // one answer a frame
    program.scene.writes = 0;
    services.undoStack().undo();
    settle();
    bool isAnswered = false;
    scene().getLink().node(1, [&](const auto&) { isAnswered = true; });
    ASSERT_TRUE(wait([&] { return isAnswered; }));
    EXPECT_LT(program.scene.writes, 2 * static_cast<int>(LiveEdits::MostAsked));
    EXPECT_EQ(scene().getState(), LiveScene::State::Attached);
    program.server->setBudget(2);
    EXPECT_TRUE(wait([&] { return hasAll(1); }));
    EXPECT_TRUE(wait([&] { return program.scene.writes == Nodes * Properties; }));
}

TEST_F(LiveStructure, FilesTheProgramsFramesWhileSomebodyLooks)
{
    attach();
    SoFrameLog& log = SoFrameLog::getInstance();
    const std::uint64_t before = log.getLast();
    log.addUser();
    program.scene.frames.columns = {"Begin", "Whole", "Draw", "Sunspots", "DrawCalls"};
    program.scene.frames.values = {1000, 700, 500, 9, 33, 2000, -5, 600, 9, live::FrameTable::Missing};
    SoFrame frame;
    ASSERT_TRUE(wait([&] { return log.get(before + 2, frame); }));
    EXPECT_EQ(log.getLast(), before + 2) << "nothing else is drawn here";
    EXPECT_EQ(frame[SoFrame::Draw], 600);
    EXPECT_EQ(frame[SoFrame::Update], 0);
    EXPECT_EQ(frame[SoFrame::DrawCalls], SoFrame::Missing);
    EXPECT_EQ(frame[SoFrame::Memory], SoFrame::Missing);
    ASSERT_TRUE(log.get(before + 1, frame));
    EXPECT_EQ(frame[SoFrame::Begin], 1000);
    EXPECT_EQ(frame[SoFrame::Whole], 700);
    EXPECT_EQ(frame[SoFrame::DrawCalls], 33);
    log.removeUser();
}
