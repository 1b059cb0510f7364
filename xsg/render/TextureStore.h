// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/render/GlFunctions.h>

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

/// Pictures as OpenGL textures, made once per texture node and quality and kept while scenes use them.
class TextureStore
{
public:
    /// Null where there is no picture, or the quality asks for none.
    GpuTexture* get(const SoTexture2* node, float quality);
    void beginRound() { ++m_round; }
    void endRound();
    void release();
    std::int64_t getUploadedBytes() const { return m_uploadedBytes; }

private:
    enum Filter { Blocky, Smooth, Smoothest };
    void upload(const SoTexture2& node, Filter filter, GpuTexture& to);

    std::map<std::tuple<std::uint64_t, std::uint32_t, Filter>, GpuTexture> m_textures;
    std::uint64_t m_round = 0;
    std::int64_t m_uploadedBytes = 0;
};

} // namespace xsg
