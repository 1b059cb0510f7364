// SPDX-License-Identifier: MIT
#pragma once

class SoField;
class SoGroup;
class SoNode;

namespace scopix
{

/// Is told of what commands do to the structure and the connections of a scene before it happens. At most one
/// is active in the process; commands ask one pointer whether there is one. It may read, and must not write.
/// GUI thread only.
class StructureWatch
{
public:
    StructureWatch() = default;
    StructureWatch(const StructureWatch&) = delete;
    StructureWatch& operator=(const StructureWatch&) = delete;

    /// Children start..start+removed-1 go, and others may come there.
    virtual void aboutToChangeChildren(SoGroup& group, int start, int removed) = 0;
    virtual void aboutToRename(SoNode& node) = 0;
    /// The field follows another one afterwards, or no longer.
    virtual void aboutToConnect(SoField& field) = 0;

    /// Null where none is active.
    static StructureWatch* getActive() { return s_active; }
    /// Returns the one before, for the caller to put back.
    static StructureWatch* setActive(StructureWatch* watch);

protected:
    ~StructureWatch() = default;

private:
    static StructureWatch* s_active;
};

} // namespace scopix
