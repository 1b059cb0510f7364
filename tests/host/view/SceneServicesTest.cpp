// SPDX-License-Identifier: MIT
// What plug-ins learn of the scene as a whole, and select in it.
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxSceneServices.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>

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
    SoPath pathThrough(SoNode* place)
    {
        SoPath path;
        for (SoNode* node : {static_cast<SoNode*>(root.get()), place, static_cast<SoNode*>(material.get())})
            path.append(node);
        return path;
    }

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

} // namespace
