// SPDX-License-Identifier: MIT
#include <xsg/render/TextureStore.h>

namespace
{

struct PixelFormat {
    GLint internal;
    GLenum external;
    GLint swizzle[4];
};

// Grey, grey with opacity, colour, colour with opacity.
constexpr PixelFormat Formats[4] = {
    {GL_R8, GL_RED, {GL_RED, GL_RED, GL_RED, GL_ONE}},
    {GL_RG8, GL_RG, {GL_RED, GL_RED, GL_RED, GL_GREEN}},
    {GL_RGB8, GL_RGB, {GL_RED, GL_GREEN, GL_BLUE, GL_ONE}},
    {GL_RGBA8, GL_RGBA, {GL_RED, GL_GREEN, GL_BLUE, GL_ALPHA}},
};

GLint wrapOf(const SoSFEnum& field)
{
    return field.getValue() == SoTexture2::Clamp ? GL_CLAMP_TO_EDGE : GL_REPEAT;
}

void set(GLenum parameter, GLint value)
{
    glTexParameteri(GL_TEXTURE_2D, parameter, value);
}

} // namespace

void xsg::TextureStore::setImageReader(SoImageReader reader)
{
    m_images.setReader(std::move(reader));
    ++m_readers;
}

xsg::GpuTexture* xsg::TextureStore::get(const SoTexture2* node, float quality)
{
    if (!node || !(quality > 0))
        return nullptr;
    const Filter filter = quality < 0.5F ? Blocky : quality > 0.5F ? Smoothest : Smooth;
    const auto [place, isNew] =
        m_textures.try_emplace({node->getNodeId(), node->getChangeCount(), m_readers, filter});
    GpuTexture& kept = place->second;
    if (isNew)
        upload(*node, filter, kept);
    kept.usedAt = m_round;
    return kept.isEmpty ? nullptr : &kept;
}

void xsg::TextureStore::upload(const SoTexture2& node, Filter filter, GpuTexture& to)
{
    const SoImageView image = m_images.find(node);
    if (image.isEmpty())
        return;
    GLint largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    if (image.width > largest || image.height > largest)
        return;
    const PixelFormat& format = Formats[image.components - 1];
    glBindTexture(GL_TEXTURE_2D, to.texture.get());
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, format.internal, image.width, image.height, 0, format.external,
                 GL_UNSIGNED_BYTE, image.bytes);
    glTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_RGBA, format.swizzle);
    set(GL_TEXTURE_WRAP_S, wrapOf(node.wrapS));
    set(GL_TEXTURE_WRAP_T, wrapOf(node.wrapT));
    set(GL_TEXTURE_MAG_FILTER, filter == Blocky ? GL_NEAREST : GL_LINEAR);
    set(GL_TEXTURE_MIN_FILTER, filter == Blocky   ? GL_NEAREST
                               : filter == Smooth ? GL_LINEAR
                                                  : GL_LINEAR_MIPMAP_LINEAR);
    if (filter == Smoothest)
        glGenerateMipmap(GL_TEXTURE_2D);
    to.isEmpty = false;
    to.hasAlpha = image.components == 2 || image.components == 4;
    m_uploadedBytes += std::int64_t{image.width} * image.height * image.components;
}

void xsg::TextureStore::endRound()
{
    for (auto it = m_textures.begin(); it != m_textures.end();) {
        if (it->second.usedAt == m_round) {
            ++it;
            continue;
        }
        it->second.texture.release();
        it = m_textures.erase(it);
    }
    m_images.keepOnly([this](std::uint64_t nodeId) {
        const auto first = m_textures.lower_bound({nodeId, 0, 0, Blocky});
        return first != m_textures.end() && std::get<0>(first->first) == nodeId;
    });
}

void xsg::TextureStore::release()
{
    for (auto& [key, texture] : m_textures)
        texture.texture.release();
    m_textures.clear();
}
