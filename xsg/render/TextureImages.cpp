// SPDX-License-Identifier: MIT
#include <xsg/render/TextureImages.h>

#include <xsg/errors/SoReadError.h>
#include <xsg/render/PixelScaling.h>
#include <xsg/render/PixmapFile.h>
#include <xsg/support/SpecialFile.h>

#include <filesystem>

namespace
{

SoImageView viewOf(const SoSFImage& image)
{
    SoImageView view;
    view.bytes = image.getValue(view.width, view.height, view.components);
    return view;
}

} // namespace

void xsg::TextureImages::setReader(SoImageReader reader)
{
    if (!reader)
        return setReader(nullptr);
    setReader([reader = std::move(reader)](const char* path, const SoImageFit& /*fit*/, SoSFImage& image) {
        return reader(path, image);
    });
}

void xsg::TextureImages::setReader(SoFittingImageReader reader)
{
    m_reader = std::move(reader);
    m_reported.clear();
}

// Once for each file, however often drawing asks for it.
void xsg::TextureImages::report(const std::string& path, bool isRead)
{
    if (isRead) {
        m_reported.erase(path);
        return;
    }
    if (!m_reported.insert(path).second)
        return;
    std::error_code error;
    SoReadError::post(
        path, 0, 0,
        !std::filesystem::exists(path, error)
            ? SbSentence("The picture of a texture is missing; the texture is drawn without it.")
            : SbSentence("The picture of a texture cannot be read; the texture is drawn without it."));
}

SoImageView xsg::TextureImages::find(const SoTexture2& node, const SoImageFit& fit)
{
    drop();
    const SoImageView file = readFile(node, fit);
    if (!file.isEmpty())
        return file;
    return node.image.isIgnored() ? SoImageView() : fitted(viewOf(node.image), fit);
}

SoImageView xsg::TextureImages::readFile(const SoTexture2& node, const SoImageFit& fit)
{
    const std::string path = node.getFilePath();
    if (path.empty())
        return {};
    bool hasRoom = true;
    const auto wanted = [&](const SoImageSize& size, int bytesPerPixel) {
        const SoImageSize given = fit ? fit(size, bytesPerPixel) : size;
        hasRoom = hasRoom && !given.isEmpty();
        return given;
    };
    m_file = std::make_unique<SoSFImage>();
    const bool isRead = !isSpecialFile(path) && (m_reader ? m_reader(path.c_str(), wanted, *m_file)
                                                          : readPixmap(path.c_str(), *m_file, wanted));
    const SoImageView view = isRead ? viewOf(*m_file) : SoImageView();
    if (hasRoom)
        report(path, !view.isEmpty());
    return view.isEmpty() ? view : fitted(view, fit);
}

// What a reader has brought down already fits.
SoImageView xsg::TextureImages::fitted(const SoImageView& image, const SoImageFit& fit)
{
    const SoImageSize size{image.width, image.height};
    if (image.isEmpty() || !fit)
        return image;
    const SoImageSize wanted = fit(size, image.components);
    if (wanted == size)
        return image;
    if (wanted.isEmpty())
        return {};
    PixelScaling scaling(size, wanted, image.components);
    const auto row = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.components);
    for (std::size_t y = 0; y < static_cast<std::size_t>(image.height); ++y)
        scaling.add(image.bytes + y * row);
    m_smaller = std::move(scaling.getPixels());
    return {wanted.width, wanted.height, image.components, m_smaller.data()};
}

void xsg::TextureImages::drop()
{
    m_file.reset();
    std::vector<unsigned char>().swap(m_smaller);
}
