// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/nodes/base/SoNode.h>

#include <string>

/// The image on the surface of what follows. A file, where one is named and the renderer can read it, wins
/// over the image field.
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
                   Modulate}; // how the image and the material's colour combine

    static SoEnumTablePtr getWrapNames();
    static SoEnumTablePtr getModelNames();
    void apply(SoState& state) const override;

    /// What a relative file name is relative to; empty, as at first, for the process's working directory. Not
    /// a field, as it depends on where the scene's file is.
    void setFolder(const std::string& folder) { m_folder = folder; }
    const std::string& getFolder() const { return m_folder; }
    /// The file to read, a relative name being put after the folder; empty where none is named, or the name
    /// is ignored.
    std::string getFilePath() const;

private:
    std::string m_folder;
};

extern template class SoTyped<SoTexture2, SoNode>;
