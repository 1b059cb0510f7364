// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>
#include <xsg/render/TextureImages.h>

#include <map>
#include <tuple>

namespace xsg
{

struct GpuTexture {
    GlTexture texture;
    bool isEmpty = true;
    bool hasAlpha = false;
    std::uint64_t usedAt = 0;
};

/// Images as OpenGL textures, made once per texture node and quality and kept while scenes use them.
class TextureStore
{
public:
    /// How files are read from now on; null: by the library's own reader. Textures that exist already are
    /// made again when get() is next called for them.
    void setImageReader(SoImageReader reader);
    /// Null where there is no image, or the quality asks for none.
    GpuTexture* get(const SoTexture2* node, float quality);
    void beginRound() { ++m_round; }
    void endRound();
    void release();
    std::int64_t getUploadedBytes() const { return m_uploadedBytes; }

private:
    enum Filter { Blocky, Smooth, Smoothest };
    void upload(const SoTexture2& node, Filter filter, GpuTexture& to);

    /// A node's id and change count, how many readers there were before, and the filter.
    using Key = std::tuple<std::uint64_t, std::uint32_t, int, Filter>;

    TextureImages m_images;
    int m_readers = 0;
    std::map<Key, GpuTexture> m_textures;
    std::uint64_t m_round = 0;
    std::int64_t m_uploadedBytes = 0;
};

} // namespace xsg
