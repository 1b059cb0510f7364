// SPDX-License-Identifier: MIT
// What the user connects and disconnects, and values of nodes of unknown types, are changes like others.
#include "ChangeParts.h"
#include "window/PatchActs.h"

#include <scopix/editing/SpxConnectCommand.h>
#include <scopix/editing/SpxFieldEdit.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <QTemporaryDir>

namespace
{

constexpr auto Scene = R"(Separator "top" {
    Cube "box" {
        width: 3
    }
    Sphere "ball" @1 {
        radius: 5
    }
    Cube "follower" {
        height: 5 <- @1.radius
    }
    Points "many" {
        points: [ 0 0 0, 1 1 1, 2 2 2 ]
    }
    Points "few" {
        points: [ 7 7 7 ]
    }
    Strange "odd" {
        colour: green
    }
}
)";

class ConnectionChanges : public ChangesWindow
{
protected:
    ConnectionChanges()
    {
        show(Scene);
        first = text();
        settle();
    }
    void connect(SoField& field, SoField* source)
    {
        services.select(&field);
        {
            const UserInput::Scope scope(services.history().input(), UserInput::Scope::User);
            EXPECT_TRUE(SpxFieldEdit::setSource(&field, source));
        }
        services.history().endStep();
        settle();
    }
    void revertAll()
    {
        settle();
        panel.getModel().setTicked(all(), true);
        press("changesRevert");
    }
    // Applied to the scene as it was, the patch makes the present one.
    void expectPatchMakesThePresentScene()
    {
        std::string error;
        SoRef<SoNode> other = SoSceneFile::readText(first, "first", error);
        const xsg::PatchResult result = xsg::applyChanges(changes.getEdits().makePatch(all()), other);
        EXPECT_TRUE(result.isWhole());
        EXPECT_EQ(SoSceneFile::writeText(other.get()), text());
        EXPECT_EQ(SoSceneFile::writeText(changes.getEdits().makeFormerScene().get()), first);
    }
    SoCube& box() { return named<SoCube>("box"); }
    SoField& radius() { return *named<SoNode>("ball").getField("radius"); }

    std::string first;
};

} // namespace

TEST_F(ConnectionChanges, WhatIsConnectedIsListedAndReverted)
{
    connect(box().width, &radius());
    EXPECT_EQ(rows(), QStringList("/box.width: 3 → 5, follows /ball.radius"));
    expectPatchMakesThePresentScene();
    services.undoStack().undo();
    EXPECT_TRUE(rows().isEmpty()) << rows().join(";").toStdString();
    EXPECT_EQ(text(), first);
    services.undoStack().redo();
    EXPECT_EQ(rows(), QStringList("/box.width: 3 → 5, follows /ball.radius"));
    edit(radius(), [&] { radius().set("6"); });
    EXPECT_EQ(rows(), QStringList({"/ball.radius: 5 → 6", "/box.width: 3 → 6, follows /ball.radius"}));
    expectPatchMakesThePresentScene();
    const std::string connected = text();
    revertAll();
    EXPECT_TRUE(rows().isEmpty()) << rows().join(";").toStdString();
    EXPECT_EQ(text(), first);
    services.undoStack().undo();
    EXPECT_EQ(text(), connected);
    EXPECT_EQ(rows().size(), 2);
    services.undoStack().redo();
    EXPECT_EQ(text(), first);
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ConnectionChanges, WhatIsDisconnectedIsListedAndReverted)
{
    SoField& height = named<SoCube>("follower").height;
    connect(height, nullptr);
    EXPECT_EQ(rows(), QStringList("/follower.height: 5, follows /ball.radius → 5"));
    expectPatchMakesThePresentScene();
    edit(height, [&] { height.set("8"); });
    EXPECT_EQ(rows(), QStringList("/follower.height: 5, follows /ball.radius → 8"));
    expectPatchMakesThePresentScene();
    const std::string apart = text();
    revertAll();
    EXPECT_TRUE(rows().isEmpty()) << rows().join(";").toStdString();
    EXPECT_EQ(text(), first);
    services.undoStack().undo();
    EXPECT_EQ(text(), apart);
    services.undoStack().redo();
    EXPECT_EQ(text(), first);
    EXPECT_EQ(height.getConnectedField(), &radius());
}

TEST_F(ConnectionChanges, ListsOfOtherLengthsComeBack)
{
    SoField& many = named<SoPoints>("many").points;
    connect(many, &named<SoPoints>("few").points);
    EXPECT_EQ(rows().size(), 1);
    expectPatchMakesThePresentScene();
    const std::string connected = text();
    for (int i = 0; i < 2; ++i) {
        revertAll();
        EXPECT_EQ(text(), first);
        services.undoStack().undo();
        EXPECT_EQ(text(), connected);
        services.undoStack().redo();
        EXPECT_EQ(text(), first);
        services.undoStack().undo();
    }
    EXPECT_TRUE(told.isEmpty()) << told.join(";").toStdString();
}

TEST_F(ConnectionChanges, OneThatIsMadeAndTakenBackIsNone)
{
    connect(box().width, &radius());
    connect(box().width, nullptr);
    edit(box().width, [&] { box().width.setValue(3); });
    EXPECT_TRUE(rows().isEmpty()) << rows().join(";").toStdString();
}

TEST_F(ConnectionChanges, TheSourceMayGo)
{
    SoField& height = named<SoCube>("follower").height;
    connect(height, nullptr);
    connect(box().width, &radius());
    click("ball");
    key(Qt::Key_Delete);
    settle();
    services.history().clear(); // with it goes what kept the ball
    changes.getEdits().begin(window.getScene(), "now");
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_FALSE(box().width.isConnected());
}

TEST_F(ConnectionChanges, PatchesConnectAsAStepThatIsListed)
{
    QTemporaryDir folder;
    const QString path = folder.filePath("p.xsgpatch");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#XsgPatch V1.0 utf8\nset /many.points [ 7 7 7 ] <- /few.points\n");
    file.close();
    ASSERT_TRUE(changes.getPatches().apply(path));
    settle();
    const std::string patched = text();
    EXPECT_EQ(rows().size(), 1);
    EXPECT_TRUE(rows().value(0).endsWith(", follows /few.points")) << rows().value(0).toStdString();
    services.undoStack().undo();
    EXPECT_EQ(text(), first);
    EXPECT_TRUE(rows().isEmpty());
    services.undoStack().redo();
    EXPECT_EQ(text(), patched);
    EXPECT_EQ(rows().size(), 1);
}

TEST_F(ConnectionChanges, ValuesOfUnknownNodesAreUndoneAndListed)
{
    auto& odd = named<SoUnknownNode>("odd");
    SoField& colour = *odd.getField("colour");
    edit(colour, [&] { colour.set("blue"); });
    EXPECT_EQ(rows(), QStringList("/odd.colour: green → blue"));
    expectPatchMakesThePresentScene();
    services.undoStack().undo();
    EXPECT_EQ(text(), first);
    EXPECT_TRUE(rows().isEmpty());
    services.undoStack().redo();
    EXPECT_EQ(rows(), QStringList("/odd.colour: green → blue"));
    revertAll();
    EXPECT_EQ(text(), first);
    services.undoStack().undo();
    services.history().endStep();
    services.select(&colour);
    {
        const UserInput::Scope scope(services.history().input(), UserInput::Scope::User);
        EXPECT_TRUE(SpxFieldEdit::setText(&colour, "red"));
    }
    services.history().endStep();
    EXPECT_EQ(rows(), QStringList("/odd.colour: green → red"));
    services.undoStack().undo();
    EXPECT_EQ(rows(), QStringList("/odd.colour: green → blue"));
}
