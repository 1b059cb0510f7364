// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFInt32.h>
#include <xsg/nodes/groups/SoGroup.h>

/// Shows one of its children, all, or none.
class XSG_API SoSwitch : public SoTyped<SoSwitch, SoGroup>
{
public:
    static constexpr const char* ClassName = "Switch";

    enum { None = -1, All = -2 };

    SoSFInt32 whichChild{this, "whichChild", None}; // its place, from 0; -1 none, -2 all

    SoChildRange getChosenChildren(const SoState& state) const override;
};

extern template class SoTyped<SoSwitch, SoGroup>;
