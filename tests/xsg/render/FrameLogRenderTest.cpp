// SPDX-License-Identifier: MIT
#include "xsg/render/Picture.h"

#include <xsg/frames/SoFrameLog.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace
{

class LoggedPicture : public Picture
{
protected:
    LoggedPicture()
    {
        log.addUser();
        renderer().getRenderer().setFrameLog(&log);
    }
    ~LoggedPicture() override { renderer().getRenderer().setFrameLog(nullptr); }

    SoFrame last() const
    {
        SoFrame frame;
        EXPECT_TRUE(log.get(log.getLast(), frame));
        return frame;
    }
    SoFrameLog log;
};

} // namespace

TEST_F(LoggedPicture, HasTheFiguresOfTheRenderer)
{
    add<SoCube>();
    draw();
    const SoRenderer::Statistics& counted = renderer().getRenderer().getStatistics();
    const SoFrame frame = last();
    EXPECT_EQ(log.getLast(), 1U);
    EXPECT_EQ(frame[SoFrame::Triangles], 12);
    EXPECT_EQ(frame[SoFrame::DrawCalls], counted.drawCalls);
    EXPECT_EQ(frame[SoFrame::StateChanges], counted.stateChanges);
    EXPECT_EQ(frame[SoFrame::Uploads], counted.bufferUploads);
    EXPECT_GT(frame[SoFrame::Uploads], 0);
    EXPECT_EQ(frame[SoFrame::UploadedBytes], counted.uploadedBytes);
    EXPECT_EQ(frame[SoFrame::NodesVisited], counted.nodes);
    EXPECT_LE(static_cast<double>(frame[SoFrame::Whole]) * 1e-9, counted.seconds);
    draw();
    EXPECT_EQ(last()[SoFrame::Uploads], 0);
}

TEST_F(LoggedPicture, TellsWhatIsOutOfSightAndWhatPicturesTake)
{
    add<SoCube>();
    draw();
    EXPECT_EQ(last()[SoFrame::ShapesCulled], 0);
    EXPECT_EQ(last()[SoFrame::TextureBytes], 0);
    const std::vector<unsigned char> pixels(std::size_t{64} * 32 * 4, 200);
    add<SoTexture2>()->image.setValue(64, 32, 4, pixels.data());
    add<SoCube>();
    add<SoTransform>()->translation.setValue(SbVec3f(0, 0, 100));
    add<SoCube>();
    add<SoCube>();
    draw();
    EXPECT_EQ(last()[SoFrame::ShapesCulled], 2);
    EXPECT_EQ(last()[SoFrame::TextureBytes], 64 * 32 * 4);
    draw();
    EXPECT_EQ(last()[SoFrame::TextureBytes], 0);
}

TEST_F(LoggedPicture, TellsWhatEachPhaseTook)
{
    add<SoCube>();
    draw();
    const SoFrame frame = last();
    std::int64_t sum = 0;
    for (int phase = SoFrame::Update; phase <= SoFrame::Draw; ++phase)
        sum += frame.figures[static_cast<std::size_t>(phase)];
    EXPECT_EQ(frame[SoFrame::Whole], sum);
    for (const SoFrame::Figure phase : {SoFrame::Traverse, SoFrame::Cull, SoFrame::Upload, SoFrame::Draw})
        EXPECT_GT(frame[phase], 0) << SoFrame::getName(phase);
}

// The answer for a picture comes with a later one.
TEST_F(LoggedPicture, LearnsTheTimeOfTheGraphicsCard)
{
    add<SoCube>();
    SoFrame frame;
    // Of short pictures only some are asked for.
    const auto hasAnswer = [&] {
        for (std::uint64_t number = 1; number <= log.getLast(); ++number) {
            if (log.get(number, frame) && frame[SoFrame::Gpu] != SoFrame::Unknown)
                return true;
        }
        return false;
    };
    for (int picture = 0; picture < 1000 && !hasAnswer(); ++picture)
        draw();
    ASSERT_TRUE(hasAnswer());
    EXPECT_GT(frame[SoFrame::Gpu], 0);
}

TEST_F(LoggedPicture, IsOneFrameAlsoWhereItIsDrawnInPieces)
{
    for (int i = 0; i < 300; ++i)
        add<SoCube>();
    SoPixels pixels;
    int pieces = 0;
    using Progress = SoRenderer::Progress;
    Progress progress = Progress::Unfinished;
    for (; progress == Progress::Unfinished; ++pieces)
        progress = renderer().renderPart(root.get(), camera.get(), 64, 64, {}, pixels);
    EXPECT_EQ(progress, Progress::Finished);
    EXPECT_EQ(log.getLast(), 1U);
}

TEST_F(LoggedPicture, IsNotFiledWhileTheLogIsOff)
{
    log.removeUser();
    add<SoCube>();
    draw();
    EXPECT_EQ(log.getLast(), 0U);
}

// To ask takes time, which a picture that takes little time would show.
TEST_F(LoggedPicture, IsTimedByTheGraphicsCardEachTimeWhereThatIsWanted)
{
    const auto count = [this](int pictures) {
        const std::uint64_t before = log.getLast();
        for (int i = 0; i < pictures; ++i)
            draw(8, 8);
        draw(8, 8); // which collects
        int known = 0;
        for (int i = 1; i <= pictures; ++i) {
            SoFrame frame;
            EXPECT_TRUE(log.get(before + static_cast<std::uint64_t>(i), frame));
            known += frame[SoFrame::Gpu] != SoFrame::Unknown;
        }
        return known;
    };
    EXPECT_GE(count(16), 1);
    log.setTimesEach(true);
    EXPECT_EQ(count(16), 16);
}
