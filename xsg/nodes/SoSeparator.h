// A group that isolates state: what its children set does not reach what follows the group.
#pragma once

#include <xsg/base/SbBox.h>
#include <xsg/nodes/SoGroup.h>

class XSG_API SoSeparator : public SoTyped<SoSeparator, SoGroup>
{
public:
    static constexpr const char* ClassName = "Separator";

    bool isIsolating() const override { return true; }
    const SoSeparator* asSeparator() const override { return this; }

    // The box around what is below, in the coordinates at the separator. It holds as long as nothing below
    // changes and the points that shapes below may take from before the separator stay the same.
    struct BoxCache {
        SbBox3f box;
        bool isValid = false;
        std::uint32_t changeCount = 0;
        std::uint64_t pointsId = 0;
        std::uint32_t pointsCount = 0;
    };
    // Kept by SoBoundingBoxAction, used by whoever can skip what is out of sight.
    BoxCache& boxCache() const { return m_boxCache; }

private:
    mutable BoxCache m_boxCache;
};

extern template class SoTyped<SoSeparator, SoGroup>;
