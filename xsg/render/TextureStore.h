// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>
#include <xsg/render/PictureBudget.h>
#include <xsg/render/TextureImages.h>

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

namespace xsg
{

struct GpuTexture {
    GlTexture texture;
    bool isEmpty = true;
    bool hasAlpha = false;
    std::int64_t bytes = 0;
    std::uint64_t usedAt = 0;
    std::int64_t users = 0; // draw states that have it
    /// What it was made of.
    struct Source {
        std::string path;
        std::uint32_t file = 0; // the change counts of the node's fields
        std::uint32_t image = 0;
        friend bool operator==(const Source& a, const Source& b)
        {
            return a.path == b.path && a.file == b.file && a.image == b.image;
        }
    } source;
    std::uint32_t nodeVersion = 0; // the node's change count when the source was compared last
};

/// Images as OpenGL textures, made once per texture node and quality and kept while scenes use them. Together
/// they take no more than the budget for pictures: what does not fit is brought down or left out, and an
/// SoError says so.
class XSG_API TextureStore
{
public:
    /// How files are read from now on; null: by the library's own reader. All textures are made again.
    template <class Reader>
    void setImageReader(Reader reader)
    {
        m_images.setReader(std::move(reader));
        m_isOutdated = true;
    }
    /// Null where there is no image, or the quality asks for none.
    /// `areColors`: for physically based surfaces, which compute with the light that sRGB numbers stand for.
    GpuTexture* get(const SoTexture2* node, float quality, bool areColors = false);
    /// `sceneId`: a scene's textures are kept from round to round, those of another one are not.
    void beginRound(std::uint64_t sceneId);
    void endRound();
    /// Frees those of these textures that no draw state has.
    void removeUnused(const std::vector<GpuTexture*>& textures);
    void release();
    std::int64_t getUploadedBytes() const { return m_uploadedBytes; }
    /// Of all textures that are there.
    std::int64_t getBytes() const { return m_budget.getBytes() - m_budget.getLeft(); }

private:
    enum Filter { Blocky, Smooth, Smoothest };
    struct Kind {
        Filter filter;
        bool areColors;
        bool operator<(const Kind& other) const
        {
            return std::tie(filter, areColors) < std::tie(other.filter, other.areColors);
        }
    };
    void update(const SoTexture2& node, Kind kind, GpuTexture& texture);
    void upload(const SoTexture2& node, Kind kind, GpuTexture& to);
    void setFilter(const SoTexture2& node, Filter filter) const;
    void forget(GpuTexture& texture);
    void report(const SoTexture2& node, const SoImageSize& size, const SoImageSize& fitted, int mostSide);

    using Key = std::pair<std::uint64_t, Kind>; // a node's id

    TextureImages m_images;
    PictureBudget m_budget{0};
    bool m_isOutdated = false;
    std::uint64_t m_sceneId = 0;
    std::map<Key, GpuTexture> m_textures;
    std::set<std::string> m_reported; // sentences
    std::uint64_t m_round = 0;
    std::int64_t m_uploadedBytes = 0;
};

} // namespace xsg
