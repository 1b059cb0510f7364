// The picture on the surface of what follows. A file, where one is named and can be read, wins over the
// image.
#pragma once

#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/nodes/SoNode.h>

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
};

extern template class SoTyped<SoTexture2, SoNode>;
