// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>

/// How the surface of what follows looks. An ignored field leaves what an earlier material said.
class XSG_API SoMaterial : public SoTyped<SoMaterial, SoNode>
{
public:
    static constexpr const char* ClassName = "Material";

    SoSFColor ambientColor{this, "ambientColor", {0.2F, 0.2F, 0.2F}};
    /// Shapes that colour their parts, faces or vertices take one after the other; the others take the first.
    SoMFColor diffuseColor{this, "diffuseColor", {{0.8F, 0.8F, 0.8F}}};
    SoSFColor specularColor{this, "specularColor"};
    SoSFColor emissiveColor{this, "emissiveColor"};
    SoSFFloat shininess{this, "shininess", 0.2F};       // 0 dull to 1 sharp
    SoSFFloat transparency{this, "transparency", 0.0F}; // 0 opaque to 1 invisible

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoMaterial, SoNode>;
