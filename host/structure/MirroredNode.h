// SPDX-License-Identifier: MIT
#pragma once

#include "structure/StructureActs.h"

#include <xsg/actions/SoPath.h>

#include <QString>

#include <functional>
#include <vector>

class SoField;

namespace scopix
{

/// A node that another program is to make among the children of a mirrored one.
struct MirroredAddition {
    SoPath parent;
    int index = -1;         // among the children; -1: behind them all
    SoType type{};          // of the new node, or else
    SoRef<SoNode> copied{}; // what it is a copy of, with all that is below
};

/// New nodes that another program is to make, and the step of the history that they are made for.
struct MirroredAct {
    std::vector<MirroredAddition> additions;
    QString name{}; // of the step, where it is nothing but the additions
    /// Thinks the step out once all are made, which it takes in the order of the additions.
    std::function<structure::Act(const structure::MakeNode&)> think{};
    std::vector<SoRef<SoNode>> unfolded{}; // nodes whose children it has to know
};

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
    virtual bool canHaveChildren() const = 0;
    /// The first of the children that are no nodes of the other scene but objects that this one refers to.
    virtual int countObjects() const = 0;
    /// It stands in several places of the other scene, as far as is known.
    virtual bool isShared() const = 0;

    /// The types of which children can be made; there is no answer where there are none, which is told.
    using AnswerTypes = std::function<void(const std::vector<SoType>&)>;
    virtual void askTypesToAdd(const AnswerTypes& answer) = 0;
    /// Once the program has made what is new it is a step of the history; what the program refuses is told.
    virtual void actInProgram(const MirroredAct& act) = 0;

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
