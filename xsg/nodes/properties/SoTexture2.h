// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/nodes/base/SoNode.h>

#include <string>

/// Pixels of 1 to 4 bytes, rows from the bottom up.
struct SoImageView {
    int width = 0;
    int height = 0;
    int components = 0;
    const unsigned char* bytes = nullptr;
};

/// The picture on the surface of what follows. A file, where one is named and can be read, wins over the
/// image.
class XSG_API SoTexture2 : public SoTyped<SoTexture2, SoNode>
{
public:
    static constexpr const char* ClassName = "Texture2";

    enum Wrap { Repeat = 0, Clamp = 1 };
    enum Model { Modulate = 0, Decal = 1, Replace = 2 };

    SoSFFilePathString fileName{this, "fileName"};
    SoSFImage image{this, "image"};
    SoSFEnum wrapS{this, "wrapS", getWrapNames(), Repeat}; // beyond the left and right edges
    SoSFEnum wrapT{this, "wrapT", getWrapNames(), Repeat}; // beyond the lower and upper edges
    SoSFEnum model{this, "model", getModelNames(),
                   Modulate}; // how the picture and the material's colour combine

    static SoEnumTablePtr getWrapNames();
    static SoEnumTablePtr getModelNames();
    void apply(SoState& state) const override;

    /// The picture to show, valid until a field changes; false for none.
    bool getPicture(SoImageView& picture) const;

    /// Where a relative file name starts from; where it is empty, as at first, the folder that the process
    /// works in. No field: a scene takes it from where its file is.
    void setFolder(const std::string& folder);
    const std::string& getFolder() const { return m_folder; }

    /// How pictures are read from files: fills `image` and returns true, or returns false. The library itself
    /// reads portable pixmaps (PGM, PPM); an application that knows more kinds puts its own reader here.
    using FileReader = bool (*)(const char* path, SoSFImage& image);
    static void setFileReader(FileReader reader);
    /// A reader for this texture alone; null, as at first, for the one of all textures.
    void useFileReader(FileReader reader);

private:
    void readFile() const;
    std::string resolved(const std::string& path) const;

    std::string m_folder;
    FileReader m_reader = nullptr;
    mutable SoSFImage m_fromFile;
    mutable std::uint32_t m_readAt = 0; // the file name field's change count, plus 1, when the file was read
};

extern template class SoTyped<SoTexture2, SoNode>;
