// SPDX-License-Identifier: MIT
// What plug-ins learn of the scene as a whole, and select in it.
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxSceneServices.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/sensors/SoSensorQueue.h>

using namespace scopix;

namespace
{

class Nothing : public SpxCommand
{
public:
    void execute() override {}
    void undo() override {}
    void redo() override {}
};

class SceneOfServices : public testing::Test
{
protected:
    SceneOfServices()
    {
        for (const auto& place : {left, right}) {
            place->addChild(material.get());
            root->addChild(place.get());
        }
        services.setSceneSource(&window);
        window.setScene(root.get(), "two places");
    }
    ~SceneOfServices() override { services.setSceneSource(nullptr); }
    static SoPath pathTo(std::initializer_list<SoNode*> nodes)
    {
        SoPath path;
        for (SoNode* node : nodes)
            path.append(node);
        return path;
    }
    SoPath pathThrough(SoNode* place) { return pathTo({root.get(), place, material.get()}); }

    SoRef<SoSeparator> root{new SoSeparator};
    SoRef<SoSeparator> left{new SoSeparator};
    SoRef<SoSeparator> right{new SoSeparator};
    SoRef<SoMaterial> material{new SoMaterial};
    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    SpxSceneServices* scene = SpxSceneServices::getInstance();
};

TEST_F(SceneOfServices, TheRootIsWhatIsOpen)
{
    ASSERT_EQ(scene, &services);
    EXPECT_EQ(scene->getSceneRoot(), root.get());
    EXPECT_TRUE(scene->getSelectedPath().isEmpty());
    EXPECT_TRUE(scene->getSelectedNodes().isEmpty());
}

TEST_F(SceneOfServices, APathSelectsThatPlaceOfANode)
{
    scene->selectPath(pathThrough(right.get()));
    EXPECT_EQ(services.selectedNode(), material.get());
    EXPECT_EQ(scene->getSelectedPath().getNode(1), right.get());
    EXPECT_EQ(scene->getSelectedPath().getTail(), material.get());
    EXPECT_EQ(scene->getSelectedNodes(), QList<SoFieldContainer*>{material.get()});

    scene->selectNode(left.get());
    EXPECT_EQ(scene->getSelectedPath().getTail(), left.get());
    scene->selectField(&material->shininess);
    EXPECT_EQ(services.selectedField(), &material->shininess);
    EXPECT_EQ(scene->getSelectedPath().getTail(), material.get());
}

TEST_F(SceneOfServices, ANodeOutsideOfTheSceneHasNoPath)
{
    const SoRef<SoMaterial> elsewhere(new SoMaterial);
    scene->selectPath(pathThrough(left.get()));
    scene->selectNode(elsewhere.get());
    EXPECT_EQ(services.selectedNode(), elsewhere.get());
    EXPECT_TRUE(scene->getSelectedPath().isEmpty());
}

TEST_F(SceneOfServices, ACommandMayNameItsStep)
{
    scene->executeCommand(new Nothing, "Change Water.shininess");
    EXPECT_EQ(services.undoStack().undoText(), "Change Water.shininess");
    scene->executeCommand(nullptr, "Nothing");
    EXPECT_EQ(services.undoStack().count(), 1);
}

TEST_F(SceneOfServices, SeveralPathsAreShownInTheTree)
{
    scene->selectPaths({pathThrough(right.get()), SoPath(), pathTo({root.get(), left.get()})});
    ASSERT_EQ(scene->getSelectedPaths().size(), 2);
    EXPECT_EQ(scene->getSelectedPaths()[0].getNode(1), right.get());
    EXPECT_EQ(scene->getSelectedPaths()[1].getTail(), left.get());
    EXPECT_EQ(scene->getSelectedPath().getTail(), left.get());
    EXPECT_EQ(window.getTree().getSelectedPaths().size(), 2);
    EXPECT_EQ(window.getTree().getSelectedPaths()[0].getNode(1), right.get());
    scene->selectNodes({left.get(), material.get(), right.get()});
    EXPECT_EQ(window.getTree().getSelectedPaths().size(), 3);
    EXPECT_EQ(scene->getSelectedPaths()[1].getTail(), material.get());
    scene->selectNodes({});
    EXPECT_TRUE(scene->getSelectedPaths().isEmpty());
    EXPECT_TRUE(window.getTree().getSelectedPaths().isEmpty());
}

TEST_F(SceneOfServices, SeveralRowsOfTheTreeAreSelectedWithCtrlAndShift)
{
    SceneTreeView& tree = window.getTree();
    window.show();
    tree.expandAll();
    const auto click = [&tree](const SoPath& path, Qt::KeyboardModifiers keys) {
        const QRect row = tree.visualRect(tree.getModel().indexOf(path));
        ASSERT_FALSE(row.isEmpty());
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, keys, row.center());
    };
    const SoPath toLeft = pathTo({root.get(), left.get()});
    const SoPath toRight = pathTo({root.get(), right.get()});
    click(toLeft, {});
    click(toRight, Qt::ControlModifier);
    EXPECT_EQ(scene->getSelectedNodes(), (QList<SoFieldContainer*>{left.get(), right.get()}));
    EXPECT_EQ(services.selectedNode(), right.get());
    click(toRight, Qt::ControlModifier);
    EXPECT_EQ(scene->getSelectedNodes(), (QList<SoFieldContainer*>{left.get()}));
    click(toRight, Qt::ShiftModifier);
    EXPECT_EQ(scene->getSelectedNodes(), (QList<SoFieldContainer*>{left.get(), right.get()}));
    click(toLeft, {});
    QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(scene->getSelectedPaths()[1].getNode(1), left.get()) << "the material in the left group";
    EXPECT_EQ(services.selectedNode(), material.get());
    root->removeChild(0);
    SoSensorQueue::getInstance().process();
    EXPECT_TRUE(scene->getSelectedNodes().isEmpty());
    window.hide();
}

} // namespace
