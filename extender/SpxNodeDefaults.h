// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QString>

class SoField;
class SoFieldContainer;

/// What services may offer beyond SpxServices: values that the user wants new nodes to have, kept for each
/// type of node and each field in the user's settings. Whoever makes a node for the user applies them before
/// the node comes into the scene. Fields that hold nodes have none. GUI thread only.
class SPX_API SpxNodeDefaults
{
public:
    /// Null where the host does not offer this.
    static SpxNodeDefaults* getInstance();

    SpxNodeDefaults(const SpxNodeDefaults&) = delete;
    SpxNodeDefaults& operator=(const SpxNodeDefaults&) = delete;

    virtual bool canHaveUserDefault(const SoField& field) const = 0;
    virtual bool hasUserDefault(const SoField& field) const = 0;
    /// From now on, new nodes of this field's node's type have its present value. Empty, or one sentence that
    /// says why not.
    virtual QString setUserDefault(const SoField& field) = 0;
    /// New nodes have the type's own value again. Empty, or one sentence that says why not.
    virtual QString clearUserDefault(const SoField& field) = 0;
    /// Writes the user's values into a new node. Records nothing. Values that the node's fields do not
    /// understand are left out.
    virtual void applyUserDefaults(SoFieldContainer& node) const = 0;

protected:
    SpxNodeDefaults() = default;
    virtual ~SpxNodeDefaults();
};
