// SPDX-License-Identifier: MIT
// Where nodes stand in a scene.
#pragma once

#include <xsg/actions/SoPath.h>

#include <QList>

#include <functional>
#include <vector>

namespace scopix
{

using Paths = QList<SoPath>;

/// The group that holds the last node of the path, or null for a path of one node.
SoGroup* parentAt(const SoPath& path);
/// The path without its last node.
SoPath parentPath(const SoPath& path);
SoPath extended(SoPath path, SoNode* node);
/// The last node of each.
std::vector<SoNode*> tailsOf(const Paths& paths);
/// Whether each node is a child of the one before.
bool isInScene(const SoPath& path, const SoNode* root);
bool areInScene(const Paths& paths, const SoNode* root);
/// Those that still lead from the root downwards, without duplicates and without what stands below another
/// one of them, in the order of the scene.
Paths topmost(const Paths& paths, const SoNode* root);
/// Whether the one is the other, or stands somewhere below it.
bool isBelow(const SoNode* node, const SoNode* above);
/// The first that is wanted of the node and all that it stands below; null where there is none.
const SoNode* findAbove(const SoNode* node, const std::function<bool(const SoNode*)>& isWanted);
/// How often the node stands below the root, a group that is shared counting once; no more than `most` are
/// counted. Places that only the undo history knows do not count.
int countPlaces(const SoNode* node, const SoNode* root, int most = 1000);

} // namespace scopix
