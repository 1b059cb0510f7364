// SPDX-License-Identifier: MIT
#include "structure/StructureActs.h"
#include "Outline.h"
#include "services/HostServices.h"
#include "structure/BranchText.h"
#include "structure/SceneStates.h"

#include <xsg/actions/SoRayPickAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

using namespace scopix;
using structure::Act;
using structure::Transfer;

namespace
{

/// A harbour with a sea and an island, which share a material.
class StructureActs : public testing::Test
{
protected:
    StructureActs()
    {
        std::string error;
        root = SoSceneFile::readText(R"(#Xsg V1.0 utf8
Separator "Harbour" {
    Separator "Sea" {
        Material "Blue" @blue { diffuseColor: 0 0 1 }
        Cube "Water" {}
    }
    Group "Island" {
        @blue
        Sphere "Hill" @hill { radius: 3 }
        Cone "Roof" { bottomRadius: <- @hill.radius }
    }
    Sphere "Sun" {}
}
)",
                                     "test", error);
        EXPECT_TRUE(root) << error;
        before = text();
    }
    std::string text() const { return SoSceneFile::writeText(root.get()); }
    SoPath path(const std::vector<const char*>& names) const
    {
        SoPath found;
        found.append(root.get());
        for (const char* name : names) {
            for (SoNode* child : found.getTail()->asGroup()->getChildren()) {
                if (child->getName() == SbName(name)) {
                    found.append(child);
                    break;
                }
            }
        }
        EXPECT_EQ(found.getLength(), static_cast<int>(names.size()) + 1);
        return found;
    }
    std::string outline() const { return outlineOf(root.get()); }
    // Does it as a step, which undoing takes back to the last byte and redoing does once more.
    void perform(Act act)
    {
        ASSERT_TRUE(act.command) << act.refusal.toStdString();
        selection = act.selection;
        services.executeCommand(act.command.release(), act.name);
        const std::string after = text();
        ASSERT_EQ(services.undoStack().count(), 1);
        EXPECT_EQ(services.undoStack().undoText(), act.name);
        services.undoStack().undo();
        EXPECT_EQ(text(), before);
        services.undoStack().redo();
        EXPECT_EQ(text(), after);
        for (const SoPath& each : selection)
            EXPECT_TRUE(isInScene(each, root.get()));
    }
    static std::string nameOf(const SoPath& path)
    {
        return path.getTail() ? outlineOf(path.getTail()) : std::string();
    }

    HostServices services;
    SoRef<SoNode> root;
    std::string before;
    Paths selection;
};

TEST_F(StructureActs, DeletesAndSelectsWhatFollows)
{
    perform(structure::remove({path({"Sea"})}));
    EXPECT_EQ(outline(), "Harbour(Island(Blue Hill Roof) Sun)");
    ASSERT_EQ(selection.size(), 1);
    EXPECT_EQ(nameOf(selection[0]), "Island(Blue Hill Roof)");
    EXPECT_EQ(services.undoStack().undoText(), QStringLiteral("Delete “Sea”"));
}

TEST_F(StructureActs, DeletesSeveralAndWhatTheyHoldOnce)
{
    perform(structure::remove(
        {path({"Sun"}), path({"Sea"}), path({"Sea", "Water"}), path({"Island", "Hill"}), path({"Sun"})}));
    EXPECT_EQ(outline(), "Harbour(Island(Blue Roof))");
}

TEST_F(StructureActs, RefusesToDeleteTheRoot)
{
    const Act act = structure::remove({path({}), path({"Sea"})});
    EXPECT_FALSE(act.command);
    EXPECT_EQ(act.refusal,
              QStringLiteral("“Harbour” is the root of the scene, and has to stay where it is."));
    EXPECT_FALSE(structure::remove({}).command);
}

TEST_F(StructureActs, DuplicatesWithConnectionsWithinAndOutOfTheBranch)
{
    perform(structure::duplicate({path({"Island"})}));
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Island(Blue Hill Roof) Island(Blue Hill Roof) Sun)");
    SoNode* copy = selection.at(0).getTail();
    SoGroup* group = copy->asGroup();
    EXPECT_NE(group->getChild(0), path({"Island", "Blue"}).getTail());
    EXPECT_EQ(group->getChild(2)->getField("bottomRadius")->getConnectedField(),
              group->getChild(1)->getField("radius"));
    Act again = structure::duplicate({path({"Island", "Roof"})});
    EXPECT_EQ(again.selection.at(0).getTail()->getField("bottomRadius")->getConnectedField(),
              path({"Island", "Hill"}).getTail()->getField("radius"));
}

TEST_F(StructureActs, GroupsSiblingsAndUngroupsThem)
{
    perform(
        structure::group({path({"Sun"}), path({"Sea"})}, structure::makeOfType(SoGroup::getClassTypeId())));
    EXPECT_EQ(outline(), "Harbour(Group(Sea(Blue Water) Sun) Island(Blue Hill Roof))");
    const Act act = structure::ungroup({selection.at(0)});
    act.command->execute();
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Sun Island(Blue Hill Roof))");
    EXPECT_EQ(act.selection.size(), 2);
    EXPECT_EQ(structure::ungroup({path({"Sun"})}).refusal,
              QStringLiteral("“Sun” is no group, and cannot be ungrouped."));
}

TEST_F(StructureActs, PutsATransformAboveAndNothingBesideMoves)
{
    const SoRef<SoTransform> transform(new SoTransform);
    perform(structure::insertAbove(path({"Sea", "Water"}), transform.get()));
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Separator(Transform Water)) Island(Blue Hill Roof) Sun)");
    EXPECT_EQ(selection.at(0).getTail(), transform.get());
    transform->translation.setValue(SbVec3f(0, 50, 0));
    const auto hit = SoRayPickAction().pick(root.get(), {SbVec3f(0, 50, 100), SbVec3f(0, 0, -1)});
    ASSERT_TRUE(hit);
    EXPECT_EQ(nameOf(hit->path), "Water");
    const auto other = SoRayPickAction().pick(root.get(), {SbVec3f(0, 0, 100), SbVec3f(0, 0, -1)});
    ASSERT_TRUE(other);
    EXPECT_EQ(nameOf(other->path), "Hill");
}

TEST_F(StructureActs, PutsAGroupAboveAndAboveAllOfTheRoot)
{
    perform(structure::insertAbove({path({"Sun"}), path({"Island", "Hill"})},
                                   structure::makeOfType(SoSwitch::getClassTypeId())));
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Island(Blue Switch(Hill) Roof) Switch(Sun))");
    const Act act = structure::insertAbove({path({})}, structure::makeOfType(SoSeparator::getClassTypeId()));
    act.command->execute();
    EXPECT_EQ(outline(), "Harbour(Separator(Sea(Blue Water) Island(Blue Switch(Hill) Roof) Switch(Sun)))");
}

TEST_F(StructureActs, MakesUniqueOnlyWhatIsShared)
{
    perform(structure::makeUnique({path({"Sea", "Blue"})}));
    EXPECT_NE(path({"Sea", "Blue"}).getTail(), path({"Island", "Blue"}).getTail());
    EXPECT_FALSE(structure::makeUnique({path({"Sea", "Blue"})}).command);
    EXPECT_FALSE(structure::makeUnique({path({"Sun"})}).command);
}

TEST_F(StructureActs, DoesNotCountWhatOnlyTheHistoryKnows)
{
    EXPECT_EQ(countPlaces(path({"Sea", "Blue"}).getTail(), root.get()), 2);
    perform(structure::remove({path({"Sea"})}));
    EXPECT_EQ(countPlaces(path({"Island", "Blue"}).getTail(), root.get()), 1);
    EXPECT_FALSE(structure::makeUnique({path({"Island", "Blue"})}).command);
}

TEST_F(StructureActs, MovesWithinAGroupAndIntoAnother)
{
    perform(structure::transfer({path({"Sea"})}, path({}), 2, Transfer::Move));
    EXPECT_EQ(outline(), "Harbour(Island(Blue Hill Roof) Sea(Blue Water) Sun)");
    Act act = structure::transfer({path({"Sun"}), path({"Sea"})}, path({"Island"}), 1, Transfer::Move);
    act.command->execute();
    EXPECT_EQ(outline(), "Harbour(Island(Blue Sea(Blue Water) Sun Hill Roof))");
    EXPECT_EQ(act.selection.size(), 2);
}

TEST_F(StructureActs, CopiesAndSharesToAnotherPlace)
{
    perform(structure::transfer({path({"Sun"})}, path({"Sea"}), -1, Transfer::Share));
    EXPECT_EQ(path({"Sea", "Sun"}).getTail(), path({"Sun"}).getTail());
    const Act act = structure::transfer({path({"Sun"})}, path({"Island"}), 0, Transfer::Copy);
    act.command->execute();
    EXPECT_NE(path({"Island", "Sun"}).getTail(), path({"Sun"}).getTail());
}

TEST_F(StructureActs, NeverPutsANodeBelowItself)
{
    EXPECT_FALSE(structure::transfer({path({"Sea"})}, path({"Sea"}), 0, Transfer::Move).command);
    EXPECT_FALSE(structure::add(path({"Sea"}), {path({}).getTail()}, "Share").command);
    EXPECT_FALSE(structure::transfer({path({"Sea"})}, path({"Sun"}), 0, Transfer::Move).command);
}

TEST_F(StructureActs, ReordersAmongSiblings)
{
    perform(structure::reorder({path({"Island"}), path({"Sun"})}, -1));
    EXPECT_EQ(outline(), "Harbour(Island(Blue Hill Roof) Sun Sea(Blue Water))");
    EXPECT_FALSE(structure::reorder({path({"Island"}), path({"Sun"})}, -1).command);
    const Act act = structure::reorder({path({"Island"})}, 1);
    act.command->execute();
    EXPECT_EQ(outline(), "Harbour(Sun Island(Blue Hill Roof) Sea(Blue Water))");
}

TEST_F(StructureActs, MovesOutOfAGroupAndIntoTheOneBefore)
{
    perform(structure::moveOut({path({"Sea", "Water"})}));
    EXPECT_EQ(outline(), "Harbour(Sea(Blue) Water Island(Blue Hill Roof) Sun)");
    const Act act = structure::moveIn({path({"Water"})});
    act.command->execute();
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Island(Blue Hill Roof) Sun)");
    EXPECT_FALSE(structure::moveOut({path({"Sun"})}).command);
    EXPECT_FALSE(structure::moveIn({path({"Sea"})}).command);
}

TEST_F(StructureActs, Renames)
{
    perform(structure::rename(path({"Sea"}), "  Ocean "));
    EXPECT_EQ(outline(), "Harbour(Ocean(Blue Water) Island(Blue Hill Roof) Sun)");
    EXPECT_EQ(structure::rename(path({"Sun"}), QString::fromUtf8("日")).command, nullptr);
    const Act same = structure::rename(path({"Sun"}), "Sun");
    EXPECT_FALSE(same.command);
    EXPECT_TRUE(same.refusal.isEmpty());
}

TEST_F(StructureActs, AddsIntoAGroupOrBehindANode)
{
    perform(structure::add(path({"Sea"}), {new SoCube}, "Add Cube"));
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water Cube) Island(Blue Hill Roof) Sun)");
    const Act act = structure::add(path({"Island", "Blue"}), {new SoCone}, "Add Cone");
    act.command->execute();
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water Cube) Island(Blue Cone Hill Roof) Sun)");
}

TEST_F(StructureActs, SwitchesOffWhereverItStands)
{
    perform(structure::switchOff(root.get(), {path({"Sea", "Blue"}).getTail()}));
    EXPECT_EQ(outline(), "Harbour(Sea(Switch(Blue) Water) Island(Switch(Blue) Hill Roof) Sun)");
}

TEST_F(StructureActs, TellsWhereTheSceneHasChangedMeanwhile)
{
    services.executeCommand(structure::remove({path({"Sea"})}).command.release(), "Delete");
    root->asGroup()->removeAllChildren();
    root->asGroup()->addChild(new SoCube);
    QString said;
    QObject::connect(&services, &HostServices::commandFailed, [&](const QString& text) { said = text; });
    services.undoStack().undo();
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Cube)");
    services.undoStack().redo();
    EXPECT_EQ(outline(), "Harbour(Cube)");
    root->asGroup()->removeAllChildren();
    root->asGroup()->addChild(new SoCube);
    const Act stale = structure::reorder({path({})}, 1);
    EXPECT_FALSE(stale.command);
}

TEST_F(StructureActs, RefusesToUndoWhatDoesNotFitAnyMore)
{
    QString said;
    QObject::connect(&services, &HostServices::commandFailed, [&](const QString& text) { said = text; });
    services.executeCommand(structure::reorder({path({"Sea"})}, 1).command.release(), "Move");
    root->asGroup()->removeChild(0);
    const std::string now = text();
    services.undoStack().undo();
    EXPECT_EQ(text(), now);
    EXPECT_TRUE(said.contains("has been changed meanwhile")) << said.toStdString();
}

TEST_F(StructureActs, KeepsADeletedBranchAliveInItsStep)
{
    SoNode* sun = path({"Sun"}).getTail();
    services.selectPath(path({"Sun"}));
    services.select(sun->getField("radius"));
    services.executeCommand(structure::remove({path({"Sun"})}).command.release(), "Delete");
    EXPECT_EQ(services.selectedField(), sun->getField("radius"));
    services.undoStack().undo();
    EXPECT_EQ(path({"Sun"}).getTail(), sun);
    services.undoStack().redo();
    services.history().clear();
    EXPECT_EQ(services.selectedNode(), nullptr);
}

// --- As text

TEST_F(StructureActs, WritesBranchesAndReadsThemBack)
{
    const std::string written = writeBranches({path({"Sea"}).getTail(), path({"Island"}).getTail()});
    EXPECT_EQ(countPlaces(path({"Sea"}).getTail(), root.get()), 1);
    const BranchReading read = readBranches(written);
    ASSERT_EQ(read.nodes.size(), 2U) << read.error.toStdString();
    EXPECT_EQ(outlineOf(read.nodes[0].get()), "Sea(Blue Water)");
    EXPECT_EQ(read.nodes[0]->asGroup()->getChild(0), read.nodes[1]->asGroup()->getChild(0));
    EXPECT_TRUE(read.nodes[1]->asGroup()->getChild(2)->getField("bottomRadius")->isConnected());
    EXPECT_EQ(text(), before);
}

TEST_F(StructureActs, ReadsNodesAsAPersonTypesThem)
{
    const BranchReading read = readBranches("  Material { diffuseColor: [ 1 0 0 ] }\nCube \"Box\" {}");
    ASSERT_EQ(read.nodes.size(), 2U) << read.error.toStdString();
    EXPECT_EQ(outlineOf(read.nodes[1].get()), "Box");
    EXPECT_TRUE(readBranches("Dear all, the cube is red.").nodes.empty());
    EXPECT_FALSE(readBranches("Dear all, the cube is red.").error.isEmpty());
    EXPECT_TRUE(readBranches("} Cube {} Group {").nodes.empty());
    EXPECT_FALSE(readBranches(" \n").error.isEmpty());
}

// --- What is seen

class Sight : public StructureActs
{
protected:
    std::string seenFrom(float x, float y)
    {
        SoRayPickAction pick;
        pick.setHiding(&states.getUntouchable());
        const auto hit = pick.pick(root.get(), {SbVec3f(x, y, 100), SbVec3f(0, 0, -1)});
        return hit ? nameOf(hit->path) : std::string();
    }
    SceneStates states;
};

TEST_F(Sight, HidesABranchWithoutWritingTheScene)
{
    EXPECT_EQ(seenFrom(0, 0), "Hill");
    states.setHidden({path({"Island"}).getTail()}, true);
    EXPECT_EQ(seenFrom(0.9F, 0.9F), "Water");
    states.setHidden({path({"Sea", "Water"}).getTail()}, true);
    EXPECT_EQ(seenFrom(0, 0), "Sun");
    states.setHidden({path({"Sun"}).getTail(), path({"Island"}).getTail()}, true);
    EXPECT_EQ(seenFrom(0, 0), "");
    EXPECT_EQ(states.findHidden(root.get()).size(), 3U);
    states.showAll();
    EXPECT_EQ(seenFrom(0, 0), "Hill");
    EXPECT_EQ(text(), before);
}

TEST_F(Sight, AHiddenGroupStillMovesWhatFollows)
{
    const SoRef<SoTransform> transform(new SoTransform);
    transform->translation.setValue(SbVec3f(20, 0, 0));
    path({"Island"}).getTail()->asGroup()->addChild(transform.get());
    EXPECT_EQ(seenFrom(20, 0), "Sun");
    states.setHidden({path({"Island"}).getTail()}, true);
    EXPECT_EQ(seenFrom(20, 0), "Sun");
}

TEST_F(Sight, IsolatesANodeWithWhatColoursIt)
{
    states.isolate({path({"Sea", "Water"}).getTail()});
    EXPECT_EQ(seenFrom(0, 0), "Water");
    states.setHidden({path({"Sea"}).getTail()}, true);
    EXPECT_EQ(seenFrom(0, 0), "");
    states.isolate({});
    EXPECT_EQ(seenFrom(0, 0), "Hill");
}

TEST_F(Sight, ClicksGoThroughWhatIsLocked)
{
    states.setLocked({path({"Island"}).getTail()}, true);
    EXPECT_EQ(seenFrom(0.9F, 0.9F), "Water");
    EXPECT_EQ(states.lockOf(path({"Island", "Hill"}).getTail()), path({"Island"}).getTail());
    EXPECT_EQ(states.lockOf(path({"Sun"}).getTail()), nullptr);
    states.showAll();
    EXPECT_EQ(seenFrom(0.9F, 0.9F), "Water");
    states.setLocked({path({"Island"}).getTail()}, false);
    EXPECT_EQ(seenFrom(0, 0), "Hill");
    EXPECT_FALSE(SceneStates::canBeHidden(*path({"Sea", "Blue"}).getTail()));
}

} // namespace
