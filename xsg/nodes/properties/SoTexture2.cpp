// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoTexture2.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/properties/PixmapFile.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoTexture2, SoNode>;

namespace
{

SoTexture2::FileReader& fileReader()
{
    static SoTexture2::FileReader reader = xsg::readPixmap;
    return reader;
}

} // namespace

SoEnumTablePtr SoTexture2::getWrapNames()
{
    static const auto names =
        std::make_shared<const SoEnumTable>(SoEnumTable{{"REPEAT", Repeat}, {"CLAMP", Clamp}});
    return names;
}

SoEnumTablePtr SoTexture2::getModelNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"MODULATE", Modulate}, {"DECAL", Decal}, {"REPLACE", Replace}});
    return names;
}

void SoTexture2::apply(SoState& state) const
{
    state.texture = this;
}

void SoTexture2::setFileReader(FileReader reader)
{
    fileReader() = reader ? reader : xsg::readPixmap;
}

void SoTexture2::useFileReader(FileReader reader)
{
    if (reader == m_reader)
        return;
    m_reader = reader;
    m_readAt = 0;
}

void SoTexture2::readFile() const
{
    const std::uint32_t now = fileName.getChangeCount() + 1;
    if (m_readAt == now)
        return;
    m_readAt = now;
    const std::string& path = fileName.getValue().str();
    const FileReader read = m_reader ? m_reader : fileReader();
    if (path.empty() || fileName.isIgnored() || !read(resolved(path).c_str(), m_fromFile))
        m_fromFile.setValue(0, 0, 0, nullptr);
}

void SoTexture2::setFolder(const std::string& folder)
{
    if (folder == m_folder)
        return;
    m_folder = folder;
    m_readAt = 0;
}

std::string SoTexture2::resolved(const std::string& path) const
{
    return m_folder.empty() || path.front() == '/' ? path : m_folder + '/' + path;
}

bool SoTexture2::getPicture(SoImageView& picture) const
{
    readFile();
    const auto take = [&](const SoSFImage& from) {
        picture.bytes = from.getValue(picture.width, picture.height, picture.components);
        return picture.bytes && picture.width > 0 && picture.height > 0;
    };
    return take(m_fromFile) || (!image.isIgnored() && take(image));
}
