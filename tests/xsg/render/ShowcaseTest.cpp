// The scene that the program opens when it is given none.
#include "Picture.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/io/PixmapFile.h>
#include <xsg/io/SoSceneFile.h>
#include <xsg/nodes/SoUnknownNode.h>

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

// The reference may differ from driver to driver by a little at edges, and by no more.
TEST_F(Showcase, LooksAsItDid)
{
    const std::string path = SCOPIX_SOURCE_DIR "/tests/xsg/render/references/showcase.ppm";
    SoPixels pixels;
    renderer().getRenderer().setBackground({0.16F, 0.18F, 0.22F});
    ASSERT_TRUE(renderer().render(scene.get(), nullptr, 320, 200, pixels));
    SoSFImage reference;
    int width = 0;
    int height = 0;
    int components = 0;
    ASSERT_TRUE(xsg::readPixmap(path.c_str(), reference)) << path;
    const unsigned char* bytes = reference.getValue(width, height, components);
    ASSERT_EQ(width, 320);
    ASSERT_EQ(height, 200);
    int different = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const unsigned char* p = bytes + 3 * ((height - 1 - y) * width + x);
            different += isNear(at(pixels, x, y), {p[0], p[1], p[2]}, 12) ? 0 : 1;
        }
    }
    if (different > width * height / 200) {
        std::vector<unsigned char> bottomUp;
        for (int y = height; y-- > 0;) {
            for (int x = 0; x < width; ++x)
                bottomUp.insert(bottomUp.end(), pixels.at(x, y), pixels.at(x, y) + 3);
        }
        SoSFImage drawn;
        drawn.setValue(width, height, 3, bottomUp.data());
        const std::string out = testing::TempDir() + "showcase.ppm";
        xsg::writePixmap(out.c_str(), drawn);
        ADD_FAILURE() << different << " pixels differ; what was drawn is in " << out;
    }
}
