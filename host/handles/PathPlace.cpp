// SPDX-License-Identifier: MIT
#include "handles/PathPlace.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/shapes/SoShape.h>

namespace scopix
{

namespace
{

class PlaceFinder : private SoTraversal
{
public:
    explicit PlaceFinder(const SoPath& path)
        : m_path(path)
    {
        state().chooseAll = true;
    }
    std::optional<PathPlace> find()
    {
        traverse(m_path.getHead());
        return m_found;
    }

private:
    // The open groups are those of the path.
    bool isAtPath(const SoNode* node) const
    {
        const auto depth = static_cast<int>(getFrames().size());
        if (m_path.getNode(depth) != node)
            return false;
        for (int i = 0; i < depth; ++i) {
            if (m_path.getNode(i) != getFrames()[static_cast<std::size_t>(i)].group)
                return false;
        }
        return true;
    }
    bool isEnd(const SoNode* node) const { return node == m_path.getTail() && isAtPath(node); }

    bool wantsGroup(SoGroup* group) override
    {
        if (isEnd(group))
            take(SoBoundingBoxAction().getBox(group));
        return !m_found && (!group->isStateScope() || isAtPath(group));
    }
    void enterGroup(SoGroup* /*group*/) override { keepMatrix(); }
    void leaveGroup(SoGroup* /*group*/) override { keepMatrix(); }
    void visitShape(SoShape* shape) override
    {
        if (isEnd(shape))
            take(shape->getBox(state()));
    }
    void visitProperty(SoNode* node) override
    {
        if (isEnd(node))
            take({});
        keepMatrix();
    }

    void keepMatrix()
    {
        m_before = state().modelMatrix;
        if (state().instances && !state().instances->empty())
            m_before = m_before * state().instances->front();
    }
    // With the matrix as it was before the node changed it.
    void take(const SbBox3f& box)
    {
        m_found = PathPlace{m_before, box};
        stop();
    }

    const SoPath& m_path;
    SbMatrix m_before;
    std::optional<PathPlace> m_found;
};

} // namespace

std::optional<PathPlace> findPlace(const SoPath& path)
{
    return path.isEmpty() ? std::nullopt : PlaceFinder(path).find();
}

} // namespace scopix
