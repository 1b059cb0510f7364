// SPDX-License-Identifier: MIT
#include <xsg/render/TextureImages.h>

#include <xsg/render/PixmapFile.h>
#include <xsg/support/SpecialFile.h>

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
        if (isSpecialFile(path) || !read(path, file.image))
            file.image.setValue(0, 0, 0, nullptr);
    }
    return &file.image;
}
