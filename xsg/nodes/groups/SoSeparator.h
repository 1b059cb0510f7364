// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>

/// A group that isolates state: what its children set does not reach what follows the group.
class XSG_API SoSeparator : public SoTyped<SoSeparator, SoGroup>
{
public:
    static constexpr const char* ClassName = "Separator";

    bool isStateScope() const override { return true; }
    const SoSeparator* asSeparator() const override { return this; }
};

extern template class SoTyped<SoSeparator, SoGroup>;
