// SPDX-License-Identifier: MIT
#include "viewport/NodeBounds.h"

#include "viewport/TargetedTraversal.h"

#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoShape.h>

namespace scopix
{

namespace
{

class PartMeasure : private TargetedTraversal
{
public:
    explicit PartMeasure(const SoNode* part)
        : TargetedTraversal({part})
        , m_part(part)
    {
    }
    SbBox3f measure(SoNode* root)
    {
        if (root == m_part || (root->asGroup() && leadsThere(root->asGroup())))
            traverse(root);
        return m_box;
    }

private:
    bool wantsGroup(SoGroup* group) override
    {
        return group == m_part || m_depth > 0 || TargetedTraversal::wantsGroup(group);
    }
    void enterGroup(SoGroup* group) override { m_depth += group == m_part ? 1 : 0; }
    void leaveGroup(SoGroup* group) override { m_depth -= group == m_part ? 1 : 0; }
    void visitShape(SoShape* shape) override
    {
        if ((m_depth == 0 && shape != m_part) || (state().drawStyle && !state().drawStyle->isVisible()))
            return;
        const SbBox3f box = shape->getBox(state());
        if (!box.isEmpty())
            state().forEachInstance([&](const SbMatrix& matrix) { m_box.extendBy(matrix.transform(box)); });
    }

    const SoNode* m_part;
    int m_depth = 0; // how often the walk is within the part: 0 or 1, for no node holds itself
    SbBox3f m_box;
};

} // namespace

SbBox3f findPartBox(SoNode* root, SoNode* part)
{
    return root && part ? PartMeasure(part).measure(root) : SbBox3f();
}

} // namespace scopix
