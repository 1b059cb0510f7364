// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>

#include <cstdint>
#include <string>
#include <vector>

namespace scopix
{

/// What a branch consists of. Nodes and what they hold count once, however many places they stand in; what is
/// drawn counts in each place.
struct SceneCounts {
    std::int64_t nodes = 0;
    std::int64_t groups = 0;
    std::int64_t shapes = 0;    // places where one is drawn
    std::int64_t triangles = 0; // so are these
    std::int64_t lines = 0;
    std::int64_t points = 0;
    std::int64_t pictures = 0;
    std::int64_t pictureBytes = 0; // of those in the scene itself
    std::int64_t bytes = 0;        // of nodes with their values, about
};

struct BranchCounts {
    int child = 0;
    SceneCounts counts;
};

/// Of the branch below `node`, which stands in the scene below `root`, and of each child of it. What is
/// shared by branches counts in the first of them.
SceneCounts countBranch(SoNode* root, SoNode* node, std::vector<BranchCounts>& branches);

} // namespace scopix
