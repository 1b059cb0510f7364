// SPDX-License-Identifier: MIT
// Picture files that announce more than anybody wants to hold.
#include "viewport/TextureImageLoader.h"

#include <xsg/fields/SoSFImage.h>
#include <xsg/render/PictureBudget.h>

#include <fstream>

using namespace scopix;

namespace
{

constexpr std::int64_t MiB = xsg::PictureBudget::MiB;

class PictureReading : public testing::Test
{
protected:
    QString write(const char* name, const QByteArray& content) const
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }
    QString write(const char* name, const QImage& image) const
    {
        const QString path = m_folder.filePath(QLatin1String(name));
        EXPECT_TRUE(image.save(path));
        return path;
    }
    bool read(const QString& path, std::int64_t bytes)
    {
        const xsg::PictureBudget budget(bytes);
        const bool isRead = TextureImageLoader::read(
            QFile::encodeName(path).constData(),
            [&](const SoImageSize& size, int bytesPerPixel) {
                asked = size;
                return budget.fit(size, bytesPerPixel, 1 << 20);
            },
            image);
        got = {};
        int components = 0;
        image.getValue(got.width, got.height, components);
        return isRead;
    }
    // The most memory that this process has had, in bytes.
    static std::int64_t peak()
    {
        std::ifstream status("/proc/self/status");
        std::string word;
        std::int64_t kibibytes = 0;
        while (status >> word && word != "VmHWM:") {
        }
        status >> kibibytes;
        return kibibytes * 1024;
    }

    SoSFImage image;
    SoImageSize asked;
    SoImageSize got;

private:
    QTemporaryDir m_folder;
};

const QByteArray HugeDrawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"30000\" height=\"30000\">"
                               "<rect width=\"30000\" height=\"30000\" fill=\"red\"/></svg>";

// A file of a hundred bytes. Its picture would take 3.6 gigabytes.
TEST_F(PictureReading, OfADrawingMakesItAsLargeAsThereIsRoom)
{
    const QString path = write("huge.svg", HugeDrawing);
    const std::int64_t before = peak();
    ASSERT_TRUE(read(path, 16 * MiB));
    EXPECT_EQ(asked, (SoImageSize{30000, 30000}));
    EXPECT_EQ(got, (SoImageSize{937, 937}));
    EXPECT_LT(peak() - before, 100 * MiB);
    int width = 0;
    int height = 0;
    int components = 0;
    EXPECT_EQ(image.getValue(width, height, components)[0], 255);
}

TEST_F(PictureReading, OfAPhotographNeedsNoRoomForTheWhole)
{
    QImage photograph(4000, 4000, QImage::Format_RGB32);
    photograph.fill(Qt::green);
    const QString png = write("large.png", photograph);
    const QString jpeg = write("large.jpg", photograph);
    photograph = QImage();
    ASSERT_TRUE(read(png, 4 * MiB));
    EXPECT_EQ(got, (SoImageSize{500, 500}));
    ASSERT_TRUE(read(jpeg, 4 * MiB));
    EXPECT_EQ(got, (SoImageSize{500, 500}));
}

// The first bytes of a picture of 16,384 pixels a side, and no more: what follows would be its pixels.
TEST_F(PictureReading, OfAHeaderAloneTakesNoMemory)
{
    const QByteArray header = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452"
                                                  "00004000000040000806000000");
    const QByteArray content = header + QByteArray::fromHex("a9c81084") + QByteArray(100, 'x');
    const QString path = write("header.png", content);
    const std::int64_t before = peak();
    EXPECT_FALSE(read(path, 64 * MiB));
    EXPECT_LT(peak() - before, 200 * MiB);
}

TEST_F(PictureReading, WithoutAnyRoomDecodesNothing)
{
    const QString path = write("none.svg", HugeDrawing);
    const std::int64_t before = peak();
    EXPECT_FALSE(read(path, 0));
    EXPECT_LT(peak() - before, 50 * MiB);
}

// Such a one can only be decoded whole, which would take a gigabyte.
TEST_F(PictureReading, LeavesOutWhatCannotBeDecodedSmaller)
{
    const QByteArray header = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452"
                                                  "00004000000040000806000001");
    const QString path =
        write("interlaced.png", header + QByteArray::fromHex("decf2012") + QByteArray(200, 'x'));
    const std::int64_t before = peak();
    EXPECT_FALSE(read(path, 64 * MiB));
    EXPECT_LT(peak() - before, 100 * MiB);
}

TEST_F(PictureReading, LeavesAsItIsWhatFits)
{
    QImage small(30, 20, QImage::Format_RGB32);
    small.fill(Qt::blue);
    ASSERT_TRUE(read(write("small.bmp", small), MiB));
    EXPECT_EQ(got, (SoImageSize{30, 20}));
}

} // namespace
