// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>
#include <vector>

class SoFieldContainer;

namespace inspector
{

/// What people are told of one type of node. With the descriptions of the fields it makes docs/nodes.md; the
/// place in the table is the place on the page.
struct NodeDescription {
    std::string_view group; // the heading on the page
    std::string_view node;
    std::string_view meaning; // in English
};

/// In the user's language.
QString meaningOf(const NodeDescription& description);

const std::vector<NodeDescription>& allNodeDescriptions();
/// Null for a type that the table does not know.
const NodeDescription* findNodeDescription(const SoFieldContainer& node);

} // namespace inspector
