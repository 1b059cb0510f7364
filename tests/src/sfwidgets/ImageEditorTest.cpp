// SPDX-License-Identifier: MIT
#include "EdSFImageLabel.h"
#include "EdSFImageWidget.h"
#include "EditedField.h"

#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/support/XsgMalloc.h>

#include <QTest>

namespace
{

struct EditedImage : EditedField<EdSFImageWidget, SoSFImage> {
    void set(int width, int height, int components, const std::vector<unsigned char>& bytes)
    {
        field.setValue(width, height, components, bytes.empty() ? nullptr : bytes.data());
        host.edit(editor, &field);
        TestHost::pump();
    }
    EdSFImageLabel* thumbnail() { return find<EdSFImageLabel>("m_imageBox"); }
    QLabel* view() { return thumbnail()->enlargedView(); }
    void point(QPoint at)
    {
        QTest::mouseMove(thumbnail(), at);
        TestHost::pump();
    }
    QImage picture()
    {
        QPixmap pixmap;
        EdSFImageWidget::getPixmapFromField(&field, pixmap);
        return pixmap.toImage();
    }
};

std::vector<unsigned char> bytes(std::size_t count)
{
    std::vector<unsigned char> result(count);
    for (std::size_t i = 0; i < count; ++i)
        result[i] = static_cast<unsigned char>(i * 40 + 1);
    return result;
}

} // namespace

TEST(ImageEditor, ColouredRowsAreTurnedOver)
{
    EditedImage edited;
    edited.set(3, 2, 3, bytes(18));
    const QImage picture = edited.picture();
    ASSERT_EQ(picture.size(), QSize(3, 2));
    const std::vector<unsigned char> b = bytes(18);
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(b[9], b[10], b[11]));
    EXPECT_EQ(picture.pixelColor(2, 1), QColor(b[6], b[7], b[8]));
}

TEST(ImageEditor, FirstPixelOfTheLastRowIsAtTheTopLeftOnTheScreen)
{
    constexpr int Size = 64;
    std::vector<unsigned char> pixels(std::size_t(Size * Size * 3));
    pixels[std::size_t((Size - 1) * Size * 3)] = 255; // and the rest is black
    EditedImage edited;
    edited.set(Size, Size, 3, pixels);
    edited.point({3, 3});
    const int frame = edited.view()->frameWidth();
    QLabel* view = edited.view();
    view->setFixedSize(Size + 2 * frame, Size + 2 * frame); // a pixel of the picture is one of the screen
    const QImage screen = view->grab().toImage();
    EXPECT_EQ(screen.pixelColor(frame, frame), QColor(255, 0, 0));
    EXPECT_EQ(screen.pixelColor(frame + 1, frame), QColor(0, 0, 0));
    EXPECT_EQ(screen.pixelColor(frame, frame + Size - 1), QColor(0, 0, 0));
}

TEST(ImageEditor, FourthComponentIsOpacity)
{
    EditedImage edited;
    edited.set(1, 1, 4, {10, 20, 30, 255});
    EXPECT_EQ(edited.picture().pixelColor(0, 0), QColor(10, 20, 30, 255));
    edited.set(1, 1, 4, {10, 20, 30, 0});
    EXPECT_EQ(edited.picture().pixelColor(0, 0).alpha(), 0);
}

TEST(ImageEditor, GreyRowsStayAndMayHaveAnyWidth)
{
    EditedImage edited;
    edited.set(3, 3, 1, bytes(9));
    const QImage picture = edited.picture();
    const std::vector<unsigned char> b = bytes(9);
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(b[0], b[0], b[0]));
    EXPECT_EQ(picture.pixelColor(2, 2), QColor(b[8], b[8], b[8]));
}

TEST(ImageEditor, TwoComponentsAreReadAs565)
{
    EditedImage edited;
    edited.set(1, 2, 2, {0x00, 0xf8, 0x1f, 0x00});
    EXPECT_EQ(edited.picture().pixelColor(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(edited.picture().pixelColor(0, 1), QColor(0, 0, 255));
}

TEST(ImageEditor, PictureWithoutDataOrTooLargeIsEmpty)
{
    EditedImage edited;
    edited.set(4, 4, 3, {});
    EXPECT_TRUE(edited.picture().isNull());
    edited.point({3, 3});
    EXPECT_FALSE(edited.view()->isVisible());
    edited.set(30000, 30000, 4, {});
    EXPECT_TRUE(edited.picture().isNull());
    edited.set(0, 0, 0, {});
    EXPECT_TRUE(edited.picture().isNull());
    SoSFFloat other;
    QPixmap pixmap(2, 2);
    EdSFImageWidget::getPixmapFromField(&other, pixmap);
    EXPECT_EQ(pixmap.size(), QSize(2, 2));
}

TEST(ImageEditor, ThumbnailForgetsThePictureBefore)
{
    EditedImage edited;
    for (const int size : {4, 30000}) {
        edited.set(2, 2, 3, bytes(12));
        EXPECT_FALSE(edited.thumbnail()->pixmap(Qt::ReturnByValue).isNull());
        edited.field.setValue(size, size, 3, nullptr);
        TestHost::pump();
        EXPECT_TRUE(edited.thumbnail()->pixmap(Qt::ReturnByValue).isNull());
    }
    for (const int components : {0, 5, -1}) {
        edited.set(2, 2, components, {});
        EXPECT_TRUE(edited.picture().isNull()) << components;
    }
}

TEST(ImageEditor, HugePictureIsNotCopied)
{
    EditedImage edited;
    edited.set(40000, 1000, 1, std::vector<unsigned char>(40000000));
    EXPECT_TRUE(edited.picture().isNull());
}

TEST(ImageEditor, EnlargedViewIsAtMost256Wide)
{
    EditedImage edited;
    edited.set(512, 128, 3, bytes(512 * 128 * 3));
    EXPECT_EQ(edited.view()->objectName(), "pixmapLabel");
    EXPECT_EQ(edited.view()->size(), QSize(256, 128));
    EXPECT_EQ(edited.thumbnail()->size(), QSize(16, 16));
    EXPECT_EQ(edited.view()->windowType(), Qt::ToolTip) << "it takes no focus and counts as no window";
}

TEST(ImageEditor, ViewOpensAndClosesWithThePointer)
{
    EditedImage edited;
    edited.set(64, 64, 3, bytes(64 * 64 * 3));
    edited.editor.getWidget()->move(100, 100);
    TestHost::pump();
    edited.point({3, 3});
    ASSERT_TRUE(edited.view()->isVisible());
    const QPoint at = edited.view()->pos();
    edited.point({8, 8});
    EXPECT_EQ(edited.view()->pos(), at);
    edited.point({300, 5});
    EXPECT_TRUE(TestHost::waitFor([&] { return !edited.view()->isVisible(); }));
}

TEST(ImageEditor, ViewClosesWithTheEditor)
{
    EditedImage edited;
    edited.set(64, 64, 3, bytes(64 * 64 * 3));
    edited.point({3, 3});
    edited.host.release(edited.editor);
    EXPECT_FALSE(edited.view()->isVisible());
    EXPECT_EQ(edited.commands(), 0);
}

TEST(ImageEditor, CopiesBuffers)
{
    const std::vector<unsigned char> source = bytes(37);
    unsigned char* copy = EdSFImageWidget::copyBuffer(source.data(), 37);
    EXPECT_TRUE(std::equal(source.begin(), source.end(), copy));
    XsgFree(copy, __FILE__, __LINE__);
    EXPECT_EQ(EdSFImageWidget::copyBuffer(source.data(), 0), nullptr);
    EXPECT_EQ(EdSFImageWidget::copyBuffer(source.data(), -4), nullptr);
}
