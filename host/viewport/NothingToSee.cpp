// SPDX-License-Identifier: MIT
#include "viewport/NothingToSee.h"

#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("NothingToSee", text);
}

// In single precision, squares of larger and of smaller numbers are none any more, and what is far away for
// its size has all its corners in one place.
constexpr float Farthest = 4e18F;
constexpr float Smallest = 1e-8F;
constexpr float SmallestPart = 1e-7F;

float largest(const SbVec3f& v)
{
    return std::max({std::abs(v[0]), std::abs(v[1]), std::abs(v[2])});
}

bool isFinite(const SbVec3f& v)
{
    return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]);
}

bool canBeShown(const SbBox3f& box, const SbMatrix& toWorld)
{
    const SbBox3f placed = toWorld.transform(box);
    if (placed.isEmpty() || !isFinite(placed.getMin()) || !isFinite(placed.getMax()))
        return false;
    const float distance = std::max(largest(placed.getMin()), largest(placed.getMax()));
    const float size = largest(placed.getSize());
    const bool isDot = largest(box.getSize()) == 0;
    return distance <= Farthest && (isDot || size >= std::max(Smallest, SmallestPart * distance));
}

class Search : private SoTraversal
{
public:
    explicit Search(SoNode* root)
    {
        state().chooseAll = true; // what is chosen by distance shows when the eye comes near
        traverse(root);
    }

    QString reason() const
    {
        if (m_isSeen || isCut())
            return {};
        if (!m_hasShapes)
            return tr("it has no shapes that are drawn");
        if (!m_hasVisible)
            return tr("its draw styles make all of it invisible");
        if (!m_hasOpaque)
            return tr("all of it is fully transparent");
        return tr("all of it is too large, too small or too far away to be shown");
    }

private:
    void visitShape(SoShape* shape) override
    {
        const SbBox3f box = shape->getBox(state());
        if (box.isEmpty())
            return;
        const bool isVisible = !state().drawStyle || state().drawStyle->isVisible();
        const bool isOpaque = isVisible && state().material.transparency < 1;
        m_hasShapes = true;
        m_hasVisible = m_hasVisible || isVisible;
        m_hasOpaque = m_hasOpaque || isOpaque;
        if (!isOpaque)
            return;
        state().forEachInstance(
            [&](const SbMatrix& matrix) { m_isSeen = m_isSeen || canBeShown(box, matrix); });
        if (m_isSeen)
            stop();
    }

    bool m_hasShapes = false;
    bool m_hasVisible = false;
    bool m_hasOpaque = false;
    bool m_isSeen = false;
};

} // namespace

QString whyNothingIsSeen(SoNode* root)
{
    return root ? Search(root).reason() : QString();
}

} // namespace scopix
