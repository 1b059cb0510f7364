// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>

class QString;

namespace scopix
{

class SceneTreeView;

/// The place that a user means by a path from the root, or by the name or else the type of a node, of which
/// the first one counts. Empty for none. GUI thread only.
SoPath pathByText(const SceneTreeView& tree, SoNode* root, const QString& text);

} // namespace scopix
