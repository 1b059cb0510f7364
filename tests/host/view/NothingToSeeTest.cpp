// SPDX-License-Identifier: MIT
#include "viewport/NothingToSee.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoPointSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <limits>

using namespace scopix;

namespace
{

class NothingToSee : public testing::Test
{
protected:
    template <class Node>
    Node* add()
    {
        auto* node = new Node;
        root->addChild(node);
        return node;
    }
    bool isReason(const char* part) const
    {
        const QString reason = whyNothingIsSeen(root.get());
        return reason.contains(QLatin1String(part));
    }
    void place(float size, float distance)
    {
        transform->scaleFactor.setValue(SbVec3f(size, size, size));
        transform->translation.setValue(SbVec3f(distance, 0, 0));
    }

    SoRef<SoSeparator> root{new SoSeparator};
    SoTransform* transform = add<SoTransform>();
};

} // namespace

TEST_F(NothingToSee, OfWhatHasNoShapes)
{
    EXPECT_EQ(whyNothingIsSeen(nullptr), "");
    EXPECT_TRUE(isReason("no shapes"));
    add<SoPointSet>();
    EXPECT_TRUE(isReason("no shapes")) << "it has no points";
    add<SoCube>();
    EXPECT_EQ(whyNothingIsSeen(root.get()), "");
}

TEST_F(NothingToSee, OneShapeThatIsSeenIsEnough)
{
    auto* style = add<SoDrawStyle>();
    auto* material = add<SoMaterial>();
    add<SoCube>();
    style->style.setValue(SoDrawStyle::Invisible);
    EXPECT_TRUE(isReason("invisible"));
    style->style.setValue(SoDrawStyle::Lines);
    material->transparency.setValue(1);
    EXPECT_TRUE(isReason("transparent"));
    material->transparency.setValue(0.999F);
    EXPECT_EQ(whyNothingIsSeen(root.get()), "");
    material->transparency.setValue(1);
    add<SoMaterial>()->transparency.setValue(0);
    add<SoCube>();
    EXPECT_EQ(whyNothingIsSeen(root.get()), "");
}

TEST_F(NothingToSee, OfWhatIsOutsideOfWhatCanBeShown)
{
    add<SoCube>();
    for (const auto& [size, distance] :
         {std::pair(1.F, 0.F), {1e-6F, 0.F}, {1e18F, 0.F}, {1.F, 1e6F}, {1e12F, 1e18F}}) {
        place(size, distance);
        EXPECT_EQ(whyNothingIsSeen(root.get()), "") << size << ' ' << distance;
    }
    const float infinite = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const auto& [size, distance] :
         {std::pair(1e20F, 0.F), {1e-12F, 0.F}, {1.F, 1e9F}, {1.F, infinite}, {1.F, nan}}) {
        place(size, distance);
        EXPECT_TRUE(isReason("too large, too small or too far away")) << size << ' ' << distance;
    }
}

TEST_F(NothingToSee, DotsNeedNoSize)
{
    add<SoPoints>()->points.setValues({{3, 4, 5}});
    add<SoPointSet>();
    EXPECT_EQ(whyNothingIsSeen(root.get()), "");
}
