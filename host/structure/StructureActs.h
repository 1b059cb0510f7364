// SPDX-License-Identifier: MIT
// What a user does with the structure of a scene. Nothing here changes the scene: each act is thought out and
// comes back as a command, for the undo history, or as a sentence that says why it cannot be done.
#pragma once

#include "structure/Places.h"

#include <scopix/SpxCommand.h>
#include <xsg/types/SoType.h>

#include <QString>

#include <functional>
#include <memory>

namespace scopix::structure
{

struct Act {
    std::unique_ptr<SpxCommand> command; // null: it cannot be done
    QString name;                        // of the step
    QString refusal;                     // one sentence, where it cannot be done
    Paths selection;                     // what is to be selected once it is done
};

/// Makes a node, for each place that needs one.
using MakeNode = std::function<SoRef<SoNode>()>;
MakeNode makeOfType(SoType type);

enum class Deed { Delete, Cut, Duplicate, Paste, Ungroup, Group, MakeUnique, Move, Copy, Share };
/// What the step is called that does it to these: "Delete “Sea”", "Delete 3 Nodes".
QString nameOf(Deed deed, const Paths& paths);

/// Is called with the part that is done, from 0 to 1, each few milliseconds while large branches are copied;
/// what it throws is passed on. The scene must stay as it is meanwhile.
using GoOn = std::function<void(double)>;

/// All take paths that start at the root of the scene; what stands below another one of them goes with it.
Act remove(const Paths& paths, Deed deed = Deed::Delete);
Act duplicate(const Paths& paths, const GoOn& goOn = {});
/// What an act on these is about: nothing that stands below another one of them, and a place that several
/// paths lead to only once; in the order of the scene.
Paths actedOn(const Paths& paths);
/// What they hold takes their places.
Act ungroup(const Paths& paths);
/// Into a new group, where the first of them stands.
Act group(const Paths& paths, const MakeNode& makeGroup);
/// Puts a node above each: a group holds it; another node governs it and nothing beside it, for which both
/// go into a Separator. Above the root: above all that it holds.
Act insertAbove(const Paths& paths, const MakeNode& makeNode);
/// `makeSeparator` may make nothing: what takes no children is then refused.
Act insertAbove(const Paths& paths, const MakeNode& makeNode, const MakeNode& makeSeparator);
Act insertAbove(const SoPath& path, SoNode* node);
/// Gives each a copy of its own, where its node stands in several places.
Act makeUnique(const Paths& paths, const GoOn& goOn = {});
/// The same with copies that `copy` has; none: it cannot be copied.
using CopyOf = std::function<SoRef<SoNode>(const SoPath&)>;
Act makeUnique(const Paths& paths, const CopyOf& copy);
/// Into the group at the path, or behind the node there.
Act add(const SoPath& path, const std::vector<SoRef<SoNode>>& nodes, const QString& name);
Act rename(const SoPath& path, const QString& name);

enum class Transfer { Move, Copy, Share };
/// To this place among the children of the group at the end of the path; -1: behind them all.
Act transfer(const Paths& paths, const SoPath& group, int index, Transfer how, const GoOn& goOn = {});
/// Among their siblings: by one place up (-1) or down (1).
Act reorder(const Paths& paths, int by);
/// Each in a Switch that shows nothing, wherever it stands.
Act switchOff(SoNode* root, const std::vector<SoNode*>& nodes);
/// Behind the group that they stand in.
Act moveOut(const Paths& paths);
/// To the end of the group before them.
Act moveIn(const Paths& paths);

} // namespace scopix::structure
