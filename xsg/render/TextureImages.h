// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/render/SoImageReader.h>

#include <map>
#include <set>
#include <string>

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
/// A file is read once, and again when its name changes; other fields of the node do not matter. One that
/// cannot be read is posted as a SoReadError.
class XSG_API TextureImages
{
public:
    /// Null: the library's own reader. Everything that was read is forgotten.
    void setReader(SoImageReader reader);
    /// Empty where there is none; valid until the next call that changes something here or in the node.
    SoImageView find(const SoTexture2& node);
    /// Forgets the files of nodes for which `isUsed(id)` is false.
    template <class IsUsed>
    void keepOnly(const IsUsed& isUsed)
    {
        for (auto it = m_files.begin(); it != m_files.end();)
            it = isUsed(it->first) ? std::next(it) : m_files.erase(it);
    }

private:
    struct File {
        std::string path;
        std::uint32_t version = 0; // the file name field's change count
        SoSFImage image;
    };
    bool read(const std::string& path, SoSFImage& image) const;
    const SoSFImage* readFile(const SoTexture2& node);
    void report(const std::string& path, bool isRead);

    SoImageReader m_reader;                // null: the library's own
    std::map<std::uint64_t, File> m_files; // by the node's id
    std::set<std::string> m_reported;      // paths that could not be read
};

} // namespace xsg
