// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/groups/SoSeparator.h>

/// Shows one of its children by the distance of the eye: the first when nearer than the first distance, the
/// second when nearer than the second, and so on; the last child beyond all distances.
class XSG_API SoLevelOfDetail : public SoTyped<SoLevelOfDetail, SoSeparator>
{
public:
    static constexpr const char* ClassName = "LevelOfDetail";

    SoSFVec3f center{this, "center"};       // from where the distance is measured
    SoMFFloat distances{this, "distances"}; // growing

    bool isViewDependent() const override { return true; }
    SoChildRange getChosenChildren(const SoState& state) const override;
};

extern template class SoTyped<SoLevelOfDetail, SoSeparator>;
