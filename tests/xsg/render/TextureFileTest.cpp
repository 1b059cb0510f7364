// SPDX-License-Identifier: MIT
// Pictures that a texture reads from its file.
#include "Picture.h"

#include "../errors/Collected.h"

#include <xsg/errors/SoReadError.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/shapes/SoTriangleStripSet.h>

#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class TextureFile : public Picture
{
protected:
    void SetUp() override
    {
        const unsigned char blue[] = {0, 0, 255};
        texture = add<SoTexture2>();
        texture->image.setValue(1, 1, 3, blue); // where the file cannot be read
        texture->model.setValue(SoTexture2::Replace);
        add<SoMaterial>()->ambientColor.setValue(SbColor(0, 0, 0));
        add<SoPoints>()->points.setValues({{-1, -1, 0}, {1, -1, 0}, {-1, 1, 0}, {1, 1, 0}});
        add<SoTextureCoordinates>()->points.setValues({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
        add<SoTriangleStripSet>();
        renderer().getRenderer().setBackground({0, 0, 0});
    }

    // A quarter from the lower left corner, and one from the upper right.
    std::pair<Pixel, Pixel> drawFile(const std::string& content)
    {
        const std::string path =
            testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + ".ppm";
        std::ofstream(path, std::ios::binary) << content;
        texture->fileName.setValue("");
        texture->fileName.setValue(path.c_str());
        const SoPixels pixels = draw();
        std::remove(path.c_str());
        return {at(pixels, 25, 39), at(pixels, 39, 24)};
    }

    SoTexture2* texture = nullptr;
};

} // namespace

TEST_F(TextureFile, OfColoursStandsUpright)
{
    // The upper row comes first.
    const auto [low, high] =
        drawFile(std::string("P6\n# by hand\n1 2\n255\n") + "\xFF\x80\x01" + "\x01\xFF\x80");
    EXPECT_PIXEL(low, (Pixel{1, 255, 128}));
    EXPECT_PIXEL(high, (Pixel{255, 128, 1}));
}

TEST_F(TextureFile, OfGreysIsGrey)
{
    const auto [low, high] = drawFile(std::string("P5 1 2 255\n") + "\x20" + "\xC0");
    EXPECT_PIXEL(low, (Pixel{0xC0, 0xC0, 0xC0}));
    EXPECT_PIXEL(high, (Pixel{0x20, 0x20, 0x20}));
}

// Opening it would wait for somebody who writes.
TEST_F(TextureFile, FallsBackToTheImageInsteadOfWaitingForAPipe)
{
    const std::string path = testing::TempDir() + "texture.ppm." + std::to_string(getpid());
    std::remove(path.c_str());
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    texture->fileName.setValue(path.c_str());
    EXPECT_PIXEL(at(draw(), 25, 39), (Pixel{0, 0, 255}));
    std::remove(path.c_str());
}

TEST_F(TextureFile, FallsBackToTheImageWhenDamaged)
{
    for (const char* damaged :
         {"", "P6", "P6\n1 2\n255\nabc", "P6\n-1 2\n255\nabcdef", "P6\n999999999 999999999\n255\n",
          "P6\n1 1\n65535\nabcdef", "P3\n1 1\n255\n1 2 3\n", "P6\n1 0\n255\n", "P6\nx y\n255\nabc"}) {
        SCOPED_TRACE(damaged);
        EXPECT_PIXEL(drawFile(damaged).first, (Pixel{0, 0, 255}));
    }
}

TEST_F(TextureFile, ReportsOneThatCannotBeReadOnce)
{
    const Collected<SoReadError> errors;
    const std::string path = testing::TempDir() + "no picture " + std::to_string(getpid()) + ".ppm";
    texture->fileName.setValue(path.c_str());
    SoRef<SoDrawStyle> style(new SoDrawStyle);
    root->insertChild(style.get(), 0);
    for (const auto shown : {SoDrawStyle::Filled, SoDrawStyle::Invisible, SoDrawStyle::Filled}) {
        style->style.setValue(shown); // what is not drawn is forgotten, and read again later
        draw();
    }
    ASSERT_EQ(errors.texts.size(), 1U);
    EXPECT_EQ(errors.texts[0],
              path + ": The picture of a texture is missing; the texture is drawn without it.");
    drawFile("P3");
    ASSERT_EQ(errors.texts.size(), 2U);
    EXPECT_NE(errors.texts[1].find("cannot be read"), std::string::npos);
    drawFile(std::string("P5 1 2 255\n") + "\x20" + "\xC0");
    drawFile("P3");
    EXPECT_EQ(errors.texts.size(), 3U) << "it was good in between";
}

namespace
{

class ImageReader : public TextureFile
{
protected:
    void SetUp() override
    {
        TextureFile::SetUp();
        texture->fileName.setValue("picture.any");
    }
    ~ImageReader() override { renderer().getRenderer().setImageReader(nullptr); }
    // Reads a pixel of this colour from whatever file.
    SoImageReader readerOf(unsigned char red, unsigned char green)
    {
        return [this, red, green](const char* path, SoSFImage& image) {
            paths.emplace_back(path);
            const unsigned char pixel[] = {red, green, 0};
            image.setValue(1, 1, 3, pixel);
            return true;
        };
    }
    Pixel draw(SoOffscreenRenderer& by)
    {
        SoPixels pixels;
        EXPECT_TRUE(by.render(root.get(), camera.get(), 64, 64, pixels)) << by.getErrorText();
        return center(pixels);
    }

    std::vector<std::string> paths; // that were read
};

} // namespace

TEST_F(ImageReader, BelongsToOneRenderer)
{
    SoOffscreenRenderer other;
    EXPECT_PIXEL(draw(renderer()), (Pixel{0, 0, 255})); // the file is not there
    renderer().getRenderer().setImageReader(readerOf(255, 0));
    EXPECT_PIXEL(draw(other), (Pixel{0, 0, 255}));
    EXPECT_PIXEL(draw(renderer()), (Pixel{255, 0, 0}));
    other.getRenderer().setImageReader(readerOf(0, 255));
    EXPECT_PIXEL(draw(other), (Pixel{0, 255, 0}));
    EXPECT_PIXEL(draw(renderer()), (Pixel{255, 0, 0}));
    renderer().getRenderer().setImageReader(nullptr);
    EXPECT_PIXEL(draw(renderer()), (Pixel{0, 0, 255}));
    EXPECT_PIXEL(draw(other), (Pixel{0, 255, 0}));
}

TEST_F(ImageReader, ReadsAFileOnceForEachName)
{
    renderer().getRenderer().setImageReader(readerOf(255, 0));
    texture->setFolder("/pictures");
    draw(renderer());
    texture->wrapS.setValue(SoTexture2::Clamp);
    draw(renderer());
    add<SoMaterial>();
    draw(renderer());
    EXPECT_EQ(paths, std::vector<std::string>({"/pictures/picture.any"}));
    texture->fileName.setValue("/elsewhere/picture.any");
    EXPECT_PIXEL(draw(renderer()), (Pixel{255, 0, 0}));
    ASSERT_EQ(paths.size(), 2U);
    EXPECT_EQ(paths.back(), "/elsewhere/picture.any");
    texture->fileName.setIgnored(true);
    EXPECT_PIXEL(draw(renderer()), (Pixel{0, 0, 255}));
    texture->fileName.setIgnored(false);
    EXPECT_PIXEL(draw(renderer()), (Pixel{255, 0, 0}));
    // Out of the scene and in again: it is not kept for ever.
    const SoRef<SoTexture2> kept(texture);
    const std::size_t before = paths.size();
    root->removeChild(0);
    draw(renderer());
    root->insertChild(texture, 0);
    EXPECT_PIXEL(draw(renderer()), (Pixel{255, 0, 0}));
    EXPECT_EQ(paths.size(), before + 1);
}
