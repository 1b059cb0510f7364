// SPDX-License-Identifier: MIT
#include <xsg/render/TextureStore.h>

#include <xsg/errors/SoError.h>
#include <xsg/frames/SoFramePhase.h>

#include <algorithm>

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

// There are no formats of sRGB for grey, which is spread to colours.
constexpr PixelFormat ColorFormats[2] = {
    {GL_SRGB8, GL_RGB, {GL_RED, GL_GREEN, GL_BLUE, GL_ONE}},
    {GL_SRGB8_ALPHA8, GL_RGBA, {GL_RED, GL_GREEN, GL_BLUE, GL_ALPHA}},
};

std::vector<unsigned char> spreadGrey(const SoImageView& image)
{
    const bool hasAlpha = image.components == 2;
    std::vector<unsigned char> pixels;
    const std::size_t count = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height);
    pixels.reserve(count * (hasAlpha ? 4 : 3));
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned char* at = image.bytes + i * static_cast<std::size_t>(image.components);
        pixels.insert(pixels.end(), 3, at[0]);
        if (hasAlpha)
            pixels.push_back(at[1]);
    }
    return pixels;
}

// Into the texture that is bound.
void send(const SoImageView& image, const PixelFormat& format, const unsigned char* bytes)
{
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, format.internal, image.width, image.height, 0, format.external,
                 GL_UNSIGNED_BYTE, bytes);
    glTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_RGBA, format.swizzle);
}

GLint wrapOf(const SoSFEnum& field)
{
    return field.getValue() == SoTexture2::Clamp ? GL_CLAMP_TO_EDGE : GL_REPEAT;
}

void set(GLenum parameter, GLint value)
{
    glTexParameteri(GL_TEXTURE_2D, parameter, value);
}

} // namespace

xsg::GpuTexture* xsg::TextureStore::get(const SoTexture2* node, float quality, bool areColors)
{
    if (!node || !(quality > 0))
        return nullptr;
    const Filter filter = quality < 0.5F ? Blocky : quality > 0.5F ? Smoothest : Smooth;
    const auto [place, isNew] = m_textures.try_emplace({node->getNodeId(), {filter, areColors}});
    GpuTexture& kept = place->second;
    if (isNew || kept.nodeVersion != node->getChangeCount())
        update(*node, {filter, areColors}, kept);
    kept.usedAt = m_round;
    return kept.isEmpty ? nullptr : &kept;
}

// Fields that say nothing of the image itself leave it where it is: its file is not read again.
void xsg::TextureStore::update(const SoTexture2& node, Kind kind, GpuTexture& texture)
{
    const bool isNew = texture.usedAt == 0;
    GpuTexture::Source source{node.getFilePath(), node.fileName.getChangeCount(),
                              node.image.getChangeCount()};
    texture.nodeVersion = node.getChangeCount();
    if (isNew || !(source == texture.source)) {
        texture.source = std::move(source);
        forget(texture);
        upload(node, kind, texture);
    } else if (!texture.isEmpty) {
        glBindTexture(GL_TEXTURE_2D, texture.texture.get());
        setFilter(node, kind.filter);
    }
}

void xsg::TextureStore::forget(GpuTexture& texture)
{
    texture.texture.release();
    m_budget.giveBack(std::exchange(texture.bytes, 0));
    texture.isEmpty = true;
    texture.hasAlpha = false;
}

void xsg::TextureStore::upload(const SoTexture2& node, Kind kind, GpuTexture& to)
{
    const SoFramePhase phase(SoFrame::Upload);
    GLint largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    SoImageSize whole;
    bool isWhole = true;
    const auto fit = [&](const SoImageSize& size, int bytesPerPixel) {
        if (isWhole)
            whole = size;
        const SoImageSize fitted = m_budget.fit(size, bytesPerPixel, largest);
        isWhole = isWhole && fitted == size;
        return fitted;
    };
    const SoImageView image = m_images.find(node, fit);
    if (!isWhole)
        report(node, whole, {image.width, image.height}, largest);
    if (image.isEmpty())
        return m_images.drop();
    glBindTexture(GL_TEXTURE_2D, to.texture.get());
    const bool hasAlpha = image.components % 2 == 0;
    if (!kind.areColors)
        send(image, Formats[image.components - 1], image.bytes);
    else if (image.components > 2)
        send(image, ColorFormats[hasAlpha ? 1 : 0], image.bytes);
    else
        send(image, ColorFormats[hasAlpha ? 1 : 0], spreadGrey(image).data());
    setFilter(node, kind.filter);
    if (kind.filter == Smoothest)
        glGenerateMipmap(GL_TEXTURE_2D);
    to.isEmpty = false;
    to.hasAlpha = hasAlpha;
    to.bytes = std::int64_t{image.width} * image.height * image.components;
    m_budget.take(to.bytes);
    m_uploadedBytes += to.bytes;
    m_images.drop();
}

void xsg::TextureStore::setFilter(const SoTexture2& node, Filter filter) const
{
    set(GL_TEXTURE_WRAP_S, wrapOf(node.wrapS));
    set(GL_TEXTURE_WRAP_T, wrapOf(node.wrapT));
    set(GL_TEXTURE_MAG_FILTER, filter == Blocky ? GL_NEAREST : GL_LINEAR);
    set(GL_TEXTURE_MIN_FILTER, filter == Blocky   ? GL_NEAREST
                               : filter == Smooth ? GL_LINEAR
                                                  : GL_LINEAR_MIPMAP_LINEAR);
}

void xsg::TextureStore::report(const SoTexture2& node, const SoImageSize& size, const SoImageSize& fitted,
                               int mostSide)
{
    const std::string path = node.getFilePath();
    std::string name = path.substr(path.find_last_of('/') + 1);
    if (name.empty())
        name = node.getReferenceName().getString();
    const SbSentence sentence = describeFit(name, size, fitted, m_budget, mostSide);
    if (m_reported.insert(sentence.getText()).second)
        SoError::post(sentence);
}

void xsg::TextureStore::beginRound(std::uint64_t sceneId)
{
    if (sceneId != m_sceneId || m_isOutdated)
        release();
    m_sceneId = sceneId;
    m_isOutdated = false;
    for (auto& [key, texture] : m_textures)
        texture.users = 0;
    ++m_round;
}

void xsg::TextureStore::endRound()
{
    for (auto it = m_textures.begin(); it != m_textures.end();) {
        if (it->second.usedAt == m_round) {
            ++it;
            continue;
        }
        forget(it->second);
        it = m_textures.erase(it);
    }
}

void xsg::TextureStore::removeUnused(const std::vector<GpuTexture*>& textures)
{
    for (const GpuTexture* unused : textures) {
        const auto place = std::find_if(m_textures.begin(), m_textures.end(),
                                        [&](const auto& each) { return &each.second == unused; });
        if (place == m_textures.end() || place->second.users > 0)
            continue;
        forget(place->second);
        m_textures.erase(place);
    }
}

void xsg::TextureStore::release()
{
    for (auto& [key, texture] : m_textures)
        texture.texture.release();
    m_textures.clear();
    m_budget = PictureBudget::preferred();
}
