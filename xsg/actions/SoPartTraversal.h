// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPathTraversal.h>

/// Walks the part of a scene that a path leads to, with the state as it is there, and ends with the part.
/// Where a node stands twice in the same group, the first place counts. A derived class says what to do with
/// the part's shapes.
class XSG_API SoPartTraversal : protected SoPathTraversal
{
protected:
    SoPartTraversal() = default;

    /// To be called before begin() or traverse(), which take the path's head.
    void follow(const SoPath& path);
    /// Whether the present node is the path's tail, or below it.
    bool isWithin() const { return m_isWithin; }

    virtual void visitPartShape(SoShape* shape) = 0;
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;

private:
    bool m_isWithin = false;
};
