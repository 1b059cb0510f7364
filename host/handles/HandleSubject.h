// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <memory>
#include <vector>

namespace scopix
{

/// What handles act on where something is selected: the node itself, the transform that governs it, or one
/// that has yet to be put there.
struct HandleSubject {
    SoPath part; // what is moved, as the user knows it
    SoPath node; // what is edited; empty where a transform has to be added
    /// Where that one goes: before the child at this place of the group or, together with the child, into a
    /// separator in its place.
    SoRef<SoGroup> group;
    int index = 0;
    bool wraps = false;

    bool isEmpty() const { return node.isEmpty() && !group; }
};

/// The transform governs the selection where it moves nothing else that can be seen beside it. Empty for a
/// scene in which nothing can be moved.
HandleSubject findHandleSubject(const SoPath& selected);
/// Of several selected nodes, each thing once, and nothing that another one of them moves along. In their
/// order.
std::vector<HandleSubject> findHandleSubjects(const std::vector<SoPath>& selected);
/// Whether there are handles for nodes of this kind.
bool hasHandles(SoNode* node);

/// A transform that is put into the scene where the subject says, and taken out again.
class AddedTransform
{
public:
    /// Turns and scales around `center`.
    AddedTransform(const HandleSubject& subject, const SbVec3f& center);

    SoTransform* getTransform() const { return m_transform.get(); }
    SoGroup* getGroup() const { return m_group.get(); }
    SoNode* getPart() const { return m_part.get(); }
    /// Both do nothing where the scene has changed meanwhile.
    void putIn();
    void takeOut();
    bool isIn() const;
    /// The same way while it is in, and while it is not; what only it brought stands for what is moved.
    SoPath pathWith(const SoPath& path) const;
    SoPath pathWithout(const SoPath& path) const;

private:
    SoNode* getAdded() const;

    SoRef<SoGroup> m_group;
    SoRef<SoNode> m_part; // the child that is wrapped; null: none is
    SoRef<SoSeparator> m_wrapper;
    SoRef<SoTransform> m_transform;
    int m_index;
};

} // namespace scopix
