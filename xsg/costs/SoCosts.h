// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/render/SoImageReader.h>

#include <algorithm>
#include <string>
#include <vector>

class SoHiding;

/// What a node costs together with all that is below it, in all places where it stands.
struct SoBranchCost {
    SoRef<SoNode> node;
    int parent = -1;        // the branch in which it was met first; -1: the root
    bool hasLevels = false; // stands below a choice by distance

    // Counted:
    std::int64_t shapes = 0; // in all places, each copy counting
    std::int64_t triangles = 0;
    std::int64_t meshBytes = 0;    // in OpenGL's memory; what is shared counts where it was met first
    std::int64_t pictureBytes = 0; // the same of pictures
    int pictureWidth = 0;          // of a texture node
    int pictureHeight = 0;
    std::int64_t smallShapes = 0; // shapes of fewer than 100 triangles

    // Measured, in milliseconds and beyond what an empty picture takes; below 0 where it was not:
    double processor = -1;
    double graphics = -1;
    double spread = 0;          // half of the pictures were this near to the median
    std::int64_t drawCalls = 0; // of the branch drawn alone
    std::int64_t pixels = 0;    // the same; one that is drawn over again counts again
    bool isMeasured = false;
    bool isUnseen = false; // it is drawn, and the picture is the same without it

    /// What a picture takes longer for it: the processor and the graphics card work at the same time.
    double getTime() const { return std::max({processor, graphics, 0.0}); }
};

/// What a scene costs, branch by branch.
struct XSG_API SoCosts {
    std::vector<SoBranchCost> branches; // in the order of a walk: the root first, each behind its parent
    double emptyPicture = -1;           // milliseconds
    /// Of those parts that were measured and contain no part that was; with what the root takes, which is
    /// the whole, it tells how far the parts can be believed.
    double sumOfParts = 0;

    /// Null where it is not there.
    const SoBranchCost* find(const SoNode* node) const;
};

/// Counts a scene without drawing it. `reader` tells the sizes of pictures in files; without one, those are
/// not counted. What is hidden by `hiding` is left out.
XSG_API SoCosts countCosts(SoNode* root, const SoFittingImageReader& reader,
                           const SoHiding* hiding = nullptr);

/// Something that could be done about a scene's cost, with the figure behind it.
struct SoCostHint {
    enum Kind { LargePicture, SmallShapes, ManyTriangles, Unseen, EqualMaterials, EqualMeshes };
    Kind kind;
    SoRef<SoNode> node;
    double weight = 0;    // milliseconds that it may take, roughly: the heaviest comes first
    std::string sentence; // without the node's name
    // What the sentence is made of: a text with "%1" and so on, in the translators' context "CostHint".
    const char* pattern = nullptr;
    std::vector<std::string> arguments;
};

/// The heaviest first. `pictureWidth` and `pictureHeight` are the view's, in pixels.
XSG_API std::vector<SoCostHint> findCostHints(const SoCosts& costs, int pictureWidth, int pictureHeight);
