// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFImage.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/render/SoImageReader.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

/// Pixels of 1 to 4 bytes, rows from the bottom up.
struct SoImageView {
    int width = 0;
    int height = 0;
    int components = 0;
    const unsigned char* bytes = nullptr;
    bool isEmpty() const { return !bytes || width <= 0 || height <= 0; }
};

namespace xsg
{

/// The images of texture nodes: a file, where one is named and can be read, wins over the node's image field.
/// What is read is kept until drop() only, since a file can be read again. One that cannot be read is posted
/// as a SoReadError.
class XSG_API TextureImages
{
public:
    /// Null: the library's own reader.
    void setReader(SoImageReader reader);
    void setReader(SoFittingImageReader reader);
    void setReader(std::nullptr_t /*none*/) { setReader(SoFittingImageReader()); }

    /// Empty where there is none, or no room for it; valid until the next call of this or drop(), and as long
    /// as the node's field stays. `fit`, if any, says how large it may be.
    SoImageView find(const SoTexture2& node, const SoImageFit& fit = {});
    /// Frees what find() has read.
    void drop();

private:
    SoImageView readFile(const SoTexture2& node, const SoImageFit& fit);
    void report(const std::string& path, bool isRead);
    SoImageView fitted(const SoImageView& image, const SoImageFit& fit);

    SoFittingImageReader m_reader; // null: the library's own
    std::vector<unsigned char> m_smaller;
    std::unique_ptr<SoSFImage> m_file; // what was read
    std::set<std::string> m_reported;  // paths that could not be read
};

} // namespace xsg
