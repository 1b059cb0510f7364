// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/NodeMatch.h>
#include <xsg/changes/SceneChange.h>

namespace xsg
{

/// Compares the fields of matched nodes as files keep them.
class FieldDiff
{
public:
    explicit FieldDiff(NodeMatch& match)
        : m_match(match)
    {
    }

    /// Adds what makes the fields of `before`, or of a fresh node where that is null, those of `after`.
    void compare(const SoNode* before, const SoNode& after, SceneChanges& changes);

private:
    void compareField(const SoField* before, const SoField& after, SceneChanges& changes);
    SoScenePath pathOf(const SoField& after);
    bool differs(const SoField* before, const SoField& after);
    bool isSameValue(const SoField& before, const SoField& after) const;
    bool isSameReference(const SoNode* before, const SoNode* after) const;
    bool isSameSource(const SoField& before, const SoField& after) const;
    bool mustKeepValue(const SoField& after);
    bool addElements(const SoField& before, const SoField& after, const SoScenePath& path,
                     SceneChanges& changes) const;
    const SoField* sourceIn(const NodePlaces& places, const SoField& field) const;
    const SoField* oldOf(const SoField& after) const;

    NodeMatch& m_match;
};

/// One line of at most 60 bytes, for comments.
std::string shownText(std::string text);

} // namespace xsg
