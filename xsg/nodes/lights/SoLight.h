// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/base/SoState.h>

/// Lights what follows it, to the end of the separator it stands in.
class XSG_API SoLight : public SoTyped<SoLight, SoNode>
{
public:
    static constexpr const char* ClassName = "Light";

    SoSFBool on{this, "on", true};
    SoSFFloat intensity{this, "intensity", 1.0F}; // 0 dark to 1 full
    SoSFColor color{this, "color", {1, 1, 1}};

    /// The light as the renderer uses it, `toWorld` being the coordinates it stands in.
    virtual SoLightSource getSource(const SbMatrix& toWorld) const = 0;
    void apply(SoState& state) const override;

protected:
    SoLightSource getBasicSource() const;
};

extern template class SoTyped<SoLight, SoNode>;
