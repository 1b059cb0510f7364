// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbVec.h>
#include <xsg/values/XsgExport.h>

#include <cstdint>
#include <unordered_map>

class SoNode;

/// Colours in which shapes are drawn in place of their own looks, as for a map of what they cost; the others
/// are grey. The scene knows nothing of it. Knows shapes by their numbers and keeps none alive. Belongs to
/// the graph's thread.
class XSG_API SoShapeColors
{
public:
    void set(const SoNode* shape, const SbColor& color);
    void clear();
    /// Every shape has its own look then.
    bool isEmpty() const { return m_colors.empty(); }
    const SbColor& get(const SoNode& shape) const;

    /// Another one after each change; copies have the same.
    std::uint64_t getVersion() const { return m_version; }

private:
    std::unordered_map<std::uint64_t, SbColor> m_colors;
    std::uint64_t m_version = 0;
};
