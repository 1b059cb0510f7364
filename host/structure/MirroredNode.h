// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SoField;
class SoFieldContainer;

namespace scopix
{

/// What a node of the scene offers beside its fields and children when it stands for one of another program:
/// its children come when they are asked for, and edits of it may be refused. Implemented by such nodes. GUI
/// thread only.
class MirroredNode
{
public:
    /// Null for ordinary nodes.
    static MirroredNode* of(SoFieldContainer* container);
    static const MirroredNode* of(const SoFieldContainer* container);

    /// Not all of its children are here yet.
    virtual bool mayHaveMoreChildren() const = 0;
    virtual void fetchChildren() = 0;

    /// Why nobody may edit it now, in a sentence; empty where everybody may.
    virtual QString refusal() const = 0;
    /// The same for its children and its name.
    virtual QString structureRefusal() const = 0;
    /// What became of the last edit of this field other than what was asked for, in a sentence.
    virtual QString remarkOn(const SoField& field) const = 0;

protected:
    MirroredNode() = default;
    MirroredNode(const MirroredNode&) = default;
    MirroredNode& operator=(const MirroredNode&) = default;
    ~MirroredNode() = default;
};

} // namespace scopix
