// SPDX-License-Identifier: MIT
#include "EdSFImageWidget.h"

#include "EdSFImageLabel.h"
#include "FieldEditorSettings.h"

#include <xsg/fields/SoSFImage.h>
#include <xsg/support/XsgMalloc.h>

#include <QBoxLayout>
#include <QFrame>
#include <QImage>
#include <QPixmap>

#include <cstring>
#include <memory>

namespace
{

constexpr const char* SourceFile = "src/FieldEditors/SFWidgets/EdSFImageWidget";

struct Free {
    void operator()(unsigned char* buffer) const { XsgFree(buffer, SourceFile, __LINE__); }
};
using Buffer = std::unique_ptr<unsigned char, Free>;

struct Picture {
    int width = 0;
    int height = 0;
    int components = 0;
    const unsigned char* bytes = nullptr;
};

// A thumbnail of more than this is not worth the memory that its copies take.
constexpr qint64 MostPixels = 1 << 25;

bool isShowable(const Picture& picture)
{
    return picture.bytes && picture.width > 0 && picture.height > 0 &&
           qint64(picture.width) * picture.height <= MostPixels;
}

QVector<QRgb> greys()
{
    QVector<QRgb> table;
    for (int i = 0; i < 256; ++i)
        table.append(qRgb(i, i, i));
    return table;
}

// Rows stay in the field's order here: such pictures stand upside down against coloured ones (decisions.md:
// image-row-order).
QPixmap toPixmap(const Picture& picture, QImage::Format format)
{
    const int rowBytes = picture.width * picture.components;
    const Buffer buffer(EdSFImageWidget::copyBuffer(picture.bytes, rowBytes * picture.height));
    if (!buffer)
        return {};
    QImage image(buffer.get(), picture.width, picture.height, rowBytes, format);
    if (format == QImage::Format_Indexed8)
        image.setColorTable(greys());
    return QPixmap::fromImage(image.copy());
}

// The field's first row becomes the last.
QPixmap toColoredPixmap(const Picture& picture)
{
    constexpr int PixelBytes = 4;
    const std::size_t size = std::size_t(picture.width) * std::size_t(picture.height) * PixelBytes;
    const Buffer buffer(static_cast<unsigned char*>(XsgMalloc(size, SourceFile, __LINE__)));
    if (!buffer)
        return {};
    const unsigned char* from = picture.bytes;
    for (int row = picture.height - 1; row >= 0; --row) {
        unsigned char* to = buffer.get() + std::size_t(row) * std::size_t(picture.width) * PixelBytes;
        for (int column = 0; column < picture.width; ++column, from += picture.components) {
            *to++ = from[2];
            *to++ = from[1];
            *to++ = from[0];
            *to++ = picture.components == 4 ? from[3] : 255;
        }
    }
    const QImage image(buffer.get(), picture.width, picture.height, picture.width * PixelBytes,
                       QImage::Format_ARGB32);
    return QPixmap::fromImage(image);
}

} // namespace

EdSFImageWidget::EdSFImageWidget(const char* name)
    : EdSFieldWidget(name)
{
    setFieldType(SoSFImage::getClassTypeId(), name);
}

void EdSFImageWidget::load()
{
    EdSFieldWidget::load();
    const int size = xsgsettings_fieldEditor(QStringLiteral("SFBoolWidth"));
    m_imageBox = new EdSFImageLabel(size, size, editionFrame(), "m_imageBox");
    m_imageBox->setAccessibleName(tr("Picture"));
    editLayout()->addWidget(m_imageBox, 0, Qt::AlignLeft);
    addWindow(m_imageBox->enlargedView());
}

void EdSFImageWidget::refresh()
{
    QPixmap pixmap;
    if (SoField* field = getField())
        getPixmapFromField(field, pixmap);
    m_imageBox->setPixmap(pixmap);
    EdSFieldWidget::refresh();
}

void EdSFImageWidget::applyChanges() {}

void EdSFImageWidget::getPixmapFromField(SoField* field, QPixmap& pixmap)
{
    const auto* image = dynamic_cast<const SoSFImage*>(field);
    if (!image)
        return;
    Picture picture;
    picture.bytes = image->getValue(picture.width, picture.height, picture.components);
    if (!isShowable(picture))
        return;
    switch (picture.components) {
    case 1:
        pixmap = toPixmap(picture, QImage::Format_Indexed8);
        break;
    case 2:
        pixmap = toPixmap(picture, QImage::Format_RGB16);
        break; // not luminance and alpha (decisions.md: image-two-components)
    case 3:
    case 4:
        pixmap = toColoredPixmap(picture);
        break;
    default:
        break;
    }
}

unsigned char* EdSFImageWidget::copyBuffer(const unsigned char* data, int size)
{
    if (size < 1)
        return nullptr;
    void* buffer = XsgMalloc(std::size_t(size), SourceFile, __LINE__);
    if (buffer)
        std::memcpy(buffer, data, std::size_t(size));
    return static_cast<unsigned char*>(buffer);
}
