// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <cstdint>

class SoNode;

/// A change of a group's list of children.
struct SoChildrenChange {
    std::uint32_t changeCount; // what the group's getChangeCount() is with this change
    std::uint32_t place;       // from here on ...
    std::uint32_t removed;     // ... so many were taken away,
    std::uint32_t inserted;    // and so many put there instead
};

/// What a level above the nodes keeps about one group, such as a cache. The group owns it, reports changes to
/// it, and destroys it together with itself: it neither outlives its group nor is found by another one that
/// is later created at the same address. Of what it is for, the group knows nothing.
class XSG_API SoGroupExtension
{
public:
    SoGroupExtension() = default;
    SoGroupExtension(const SoGroupExtension&) = delete;
    SoGroupExtension& operator=(const SoGroupExtension&) = delete;
    virtual ~SoGroupExtension() = default;

    /// `child`, or something below it, is changing; null: the group's own fields or its list of children.
    /// `changeCount`: what the group's getChangeCount() is with this change.
    virtual void noteChange(const SoNode* child, std::uint32_t changeCount) = 0;
    /// The list of children is changing; noteChange(null) follows.
    virtual void noteChildren(const SoChildrenChange& /*change*/) {}
};
