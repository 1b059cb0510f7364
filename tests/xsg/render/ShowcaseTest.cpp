// SPDX-License-Identifier: MIT
// The scene that the program opens when it is given none.
#include "Picture.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoUnknownNode.h>

#include <set>

class Showcase : public Picture
{
protected:
    void SetUp() override
    {
        std::string error;
        scene = SoSceneFile::read(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg", error);
        ASSERT_TRUE(scene) << error;
    }

    SoRef<SoNode> scene;
};

TEST_F(Showcase, HasEveryKindOfNode)
{
    std::set<std::string> used;
    SoSearchAction all;
    all.setLimit(-1);
    for (const SoPath& path : all.apply(scene.get()))
        used.insert(path.getTail()->getTypeId().getName().getString());
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (!type.canCreateInstance() || type == SoUnknownNode::getClassTypeId())
            continue;
        EXPECT_EQ(used.count(type.getName().getString()), 1U)
            << "data/scenes/showcase.xsg has no " << type.getName().getString();
    }
    EXPECT_EQ(used.count("UnknownNode"), 0U);
}

TEST_F(Showcase, IsDrawnWithoutAnError)
{
    static int errors = 0;
    SoGLError::setHandlerCallback([](const SoError*, void*) { ++errors; }, nullptr);
    SoPixels pixels;
    ASSERT_TRUE(renderer().render(scene.get(), nullptr, 320, 200, pixels)) << renderer().getErrorText();
    SoGLError::setHandlerCallback(SoError::defaultHandler, nullptr);
    EXPECT_EQ(errors, 0);
    EXPECT_GT(renderer().getRenderer().getStatistics().triangles, 1000);
}
