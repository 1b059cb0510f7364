// SPDX-License-Identifier: MIT
#include <xsg/render/TextureImages.h>

#include <xsg/errors/SoReadError.h>
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
    m_reader = std::move(reader);
    m_files.clear();
    m_reported.clear();
}

SoImageView xsg::TextureImages::find(const SoTexture2& node)
{
    if (const SoSFImage* file = readFile(node)) {
        const SoImageView view = viewOf(*file);
        if (!view.isEmpty())
            return view;
    }
    return node.image.isIgnored() ? SoImageView() : viewOf(node.image);
}

bool xsg::TextureImages::read(const std::string& path, SoSFImage& image) const
{
    return m_reader ? m_reader(path.c_str(), image) : readPixmap(path.c_str(), image);
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
    const char* sentence = !std::filesystem::exists(path, error)
                               ? "The picture of a texture is missing; the texture is drawn without it."
                               : "The picture of a texture cannot be read; the texture is drawn without it.";
    SoReadError::post(SbString(path), 0, sentence);
}

// Null where none is named; empty where it cannot be read.
const SoSFImage* xsg::TextureImages::readFile(const SoTexture2& node)
{
    const std::string path = node.getFilePath();
    if (path.empty()) {
        m_files.erase(node.getNodeId());
        return nullptr;
    }
    const std::uint32_t version = node.fileName.getChangeCount();
    const auto [place, isNew] = m_files.try_emplace(node.getNodeId());
    File& file = place->second;
    if (isNew || file.version != version || file.path != path) {
        file.version = version;
        file.path = path;
        const bool isRead = !isSpecialFile(path) && read(path, file.image);
        if (!isRead)
            file.image.setValue(0, 0, 0, nullptr);
        report(path, isRead);
    }
    return &file.image;
}
