// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/shapes/SoShape.h>

/// Text that keeps its size on the screen and stands where the origin is. Lines run downwards. Latin letters,
/// digits and signs; what the font does not have is shown as a box.
class XSG_API SoScreenText : public SoTyped<SoScreenText, SoShape>
{
public:
    static constexpr const char* ClassName = "ScreenText";

    enum Justification { Left = 0, Center = 1, Right = 2 };

    SoMFString lines{this, "lines"};
    SoSFFloat size{this, "size", 14.0F}; // height of a line in pixels
    SoSFEnum justification{this, "justification", getJustificationNames(), Left};

    static SoEnumTablePtr getJustificationNames();
    void generate(const SoState& state, SoGeometry& geometry) const override;
    SoGeometryKey getGeometryKey(const SoState& state) const override;
    SbBox3f getBox(const SoState& state) const override;
};

extern template class SoTyped<SoScreenText, SoShape>;
