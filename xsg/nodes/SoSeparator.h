// A group that isolates state: what its children set does not reach what follows the group.
#pragma once

#include <xsg/nodes/SoGroup.h>

class XSG_API SoSeparator : public SoTyped<SoSeparator, SoGroup>
{
public:
    static constexpr const char* ClassName = "Separator";

    bool isIsolating() const override { return true; }
};

extern template class SoTyped<SoSeparator, SoGroup>;
