// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFMatrix.h>
#include <xsg/nodes/groups/SoGroup.h>

/// Shows its children once for each matrix; the graphics hardware copies them. Lights and clip planes inside
/// stand where the first copy does.
class XSG_API SoInstances : public SoTyped<SoInstances, SoGroup>
{
public:
    static constexpr const char* ClassName = "Instances";

    /// Instances within instances multiply; more copies than this are left out, and the
    /// state says so.
    static constexpr std::size_t MostCopies = 1U << 20U;

    SoMFMatrix matrices{this, "matrices"}; // where each copy stands; none: nothing is shown

    bool isStateScope() const override { return true; }
    void apply(SoState& state) const override;
    SoChildRange getChosenChildren(const SoState& state) const override;
};

extern template class SoTyped<SoInstances, SoGroup>;
