// SPDX-License-Identifier: MIT
// How much memory the pictures of a scene take together.
#include "Picture.h"

#include "support/HeapInUse.h"
#include "xsg/errors/Collected.h"

#include <xsg/core/SoPreferences.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/shapes/SoTriangleStripSet.h>
#include <xsg/render/PictureBudget.h>
#include <xsg/render/PixelScaling.h>

#include <fstream>

namespace
{

constexpr std::int64_t MiB = xsg::PictureBudget::MiB;
constexpr int AnySide = 1 << 20;

using Bytes = std::vector<unsigned char>;

} // namespace

TEST(PictureBudget, LeavesAsItIsWhatFits)
{
    const xsg::PictureBudget budget(512 * MiB);
    EXPECT_EQ(budget.fit({8192, 16384}, 4, AnySide), (SoImageSize{8192, 16384})); // all of it
    EXPECT_EQ(budget.fit({1, 1}, 4, AnySide), (SoImageSize{1, 1}));
    EXPECT_TRUE(budget.fit({0, 5}, 4, AnySide).isEmpty());
}

TEST(PictureBudget, BringsDownWhatDoesNotAndLeavesRoomForMore)
{
    xsg::PictureBudget budget(512 * MiB);
    std::vector<int> sides;
    for (int picture = 0; picture < 8; ++picture) {
        const SoImageSize size = budget.fit({16384, 16384}, 4, AnySide);
        EXPECT_EQ(size.width, size.height);
        sides.push_back(size.width);
        budget.take(xsg::PictureBudget::bytesOf(size, 4));
    }
    EXPECT_EQ(sides, std::vector<int>({8192, 4096, 4096, 4096, 2048, 2048, 2048, 1024}));
    EXPECT_GT(budget.getLeft(), 0);
    EXPECT_EQ(budget.fit({100, 100}, 4, AnySide), (SoImageSize{100, 100}));
    budget.giveBack(256 * MiB);
    EXPECT_EQ(budget.fit({8192, 8192}, 4, AnySide), (SoImageSize{8192, 8192}));
}

TEST(PictureBudget, HandlesWhatNoMemoryHolds)
{
    const xsg::PictureBudget budget(512 * MiB);
    constexpr int Most = std::numeric_limits<int>::max();
    const SoImageSize size = budget.fit({Most, Most}, 4, Most);
    EXPECT_GT(size.width, 1000);
    EXPECT_LE(xsg::PictureBudget::bytesOf(size, 4), 256 * MiB);
    EXPECT_EQ(budget.fit({Most, 1}, 4, 16384), (SoImageSize{16383, 1}));
    EXPECT_TRUE(xsg::PictureBudget(0).fit({100, 100}, 4, AnySide).isEmpty());
    EXPECT_TRUE(xsg::PictureBudget(100).fit({2, 2000}, 4, AnySide).isEmpty());
}

TEST(PixelScaling, TakesTheMeanOfWhatAPixelStandsFor)
{
    const Bytes rows[] = {{0, 10, 100, 20, 40, 1}, {100, 30, 200, 40, 60, 3}, {8, 8, 10, 10, 99, 99}};
    xsg::PixelScaling whole({3, 3}, {3, 3}, 2);
    xsg::PixelScaling smaller({3, 3}, {1, 1}, 2);
    xsg::PixelScaling uneven({3, 3}, {2, 2}, 2);
    for (const Bytes& row : rows) {
        whole.add(row.data());
        smaller.add(row.data());
        uneven.add(row.data());
    }
    EXPECT_EQ(whole.getPixels().size(), 18U);
    EXPECT_EQ(whole.getPixels()[6], 100);
    EXPECT_EQ(smaller.getPixels(), Bytes({(46 + 120 + 39) / 3, (10 + 24 + 39) / 3}));
    EXPECT_EQ(uneven.getPixels(), Bytes({0, 10, 70, 10, 54, 19, 92, 37}));
}

namespace
{

class BudgetedPictures : public Picture
{
protected:
    ~BudgetedPictures() override
    {
        SoPreferences::setValue("XSG_PICTURE_MEMORY", SbString());
        for (const std::string& path : m_paths)
            std::remove(path.c_str());
    }

    // A picture on a square, both in a group of their own.
    SoTexture2* addPicture()
    {
        auto* group = add<SoSeparator>();
        auto* texture = new SoTexture2;
        texture->model.setValue(SoTexture2::Replace);
        auto* points = new SoPoints;
        points->points.setValues({{-1, -1, 0}, {1, -1, 0}, {-1, 1, 0}, {1, 1, 0}});
        auto* corners = new SoTextureCoordinates;
        corners->points.setValues({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
        for (SoNode* node : std::initializer_list<SoNode*>{texture, points, corners, new SoTriangleStripSet})
            group->addChild(node);
        return texture;
    }
    SoTexture2* addPicture(const std::string& name, int width, int height, std::size_t pixels)
    {
        m_paths.push_back(testing::TempDir() + name);
        std::ofstream file(m_paths.back(), std::ios::binary);
        file << "P6\n" << width << ' ' << height << "\n255\n";
        const std::string row(3 * static_cast<std::size_t>(width), '\xC0');
        for (std::size_t done = 0; done < pixels; done += static_cast<std::size_t>(width))
            file << row;
        SoTexture2* texture = addPicture();
        texture->fileName.setValue(m_paths.back().c_str());
        return texture;
    }
    SoTexture2* addFile(const std::string& name, int side)
    {
        return addPicture(name, side, side, static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    }
    static void allow(const char* mebibytes) { SoPreferences::setValue("XSG_PICTURE_MEMORY", mebibytes); }
    // By a renderer that has no pictures yet; returns what it took for them.
    std::int64_t drawAnew()
    {
        draw(newRenderer);
        return newRenderer.getRenderer().getStatistics().textureBytes;
    }
    SoPixels draw(SoOffscreenRenderer& by)
    {
        SoPixels pixels;
        EXPECT_TRUE(by.render(root.get(), camera.get(), 64, 64, pixels)) << by.getErrorText();
        return pixels;
    }

    Collected<SoError> said;
    SoOffscreenRenderer newRenderer;

private:
    std::vector<std::string> m_paths;
};

} // namespace

TEST_F(BudgetedPictures, AreWholeWhereThereIsRoom)
{
    addFile("budget-small.ppm", 300);
    EXPECT_EQ(drawAnew(), 300 * 300 * 3);
    EXPECT_TRUE(said.texts.empty());
}

TEST_F(BudgetedPictures, FromFilesAreBroughtDownAndThatIsSaidOnceForEach)
{
    allow("1");
    for (int i = 0; i < 8; ++i)
        addFile("budget-" + std::to_string(i) + ".ppm", 700);
    EXPECT_LE(drawAnew(), MiB);
    ASSERT_EQ(said.texts.size(), 8U);
    EXPECT_NE(said.texts.front().find("“budget-0.ppm” of 700 × 700 pixels is brought down to 350 × 350"),
              std::string::npos)
        << said.texts.front();
    EXPECT_NE(said.texts.front().find("1 MiB"), std::string::npos);
    EXPECT_NE(center(draw(newRenderer)), Background);
    root->addChild(new SoSeparator);
    drawAnew();
    EXPECT_EQ(said.texts.size(), 8U);
}

TEST_F(BudgetedPictures, OfAFieldAreBroughtDownForOpenGL)
{
    allow("1");
    const std::vector<unsigned char> pixels(1024 * 1024 * 4, 0x80);
    SoTexture2* texture = addPicture();
    texture->setName("inline");
    texture->image.setValue(1024, 1024, 4, pixels.data());
    EXPECT_EQ(drawAnew(), 256 * 256 * 4);
    ASSERT_EQ(said.texts.size(), 1U);
    EXPECT_NE(said.texts.front().find("“inline” of 1024 × 1024"), std::string::npos) << said.texts.front();
}

TEST_F(BudgetedPictures, AreLeftOutWithoutAnyRoom)
{
    allow("0");
    addFile("budget-none.ppm", 100);
    EXPECT_EQ(drawAnew(), 0);
    ASSERT_EQ(said.texts.size(), 1U);
    EXPECT_NE(said.texts.front().find("is left out"), std::string::npos) << said.texts.front();
}

TEST_F(BudgetedPictures, MakeRoomForThoseOfTheNextScene)
{
    allow("1");
    const auto first = root;
    addFile("budget-first.ppm", 500);
    EXPECT_EQ(drawAnew(), 500 * 500 * 3);
    root = SoRef<SoSeparator>(new SoSeparator);
    SoTexture2* texture = addFile("budget-second.ppm", 500);
    EXPECT_EQ(drawAnew(), 500 * 500 * 3);
    // And where one takes the place of another.
    const std::string path = texture->fileName.getValue().str();
    texture->fileName.setValue("");
    texture->fileName.setValue(path.c_str());
    EXPECT_EQ(drawAnew(), 500 * 500 * 3);
    EXPECT_TRUE(said.texts.empty());
}

// The header alone says 2.5 gigabytes.
TEST_F(BudgetedPictures, AnnouncedButNotThereTakeNoMemory)
{
    addPicture("budget-liar.ppm", 29000, 29000, 29000);
    EXPECT_EQ(drawAnew(), 0);
}

// The driver has its copy, and the file can be read again.
TEST_F(BudgetedPictures, AreNotKeptBesideTheDriversCopy)
{
    constexpr int Side = 2000;
    constexpr std::size_t Size = std::size_t{Side} * Side * 3;
    auto* quality = add<SoComplexity>();
    quality->textureQuality.setValue(0.4F); // without smaller versions of itself
    drawAnew();
    const std::size_t before = heapInUse();
    addFile("budget-once.ppm", Side);
    EXPECT_EQ(drawAnew(), static_cast<std::int64_t>(Size));
    draw(newRenderer);
    EXPECT_LT(heapInUse() - before, Size / 3 * 4 + Size / 2); // a driver may keep four bytes a pixel
}
