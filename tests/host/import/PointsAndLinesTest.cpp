// SPDX-License-Identifier: MIT
// Models without surfaces: clouds of points, and lines.
#include "ModelFiles.h"

#include "import/SceneBuilder.h"
#include "reader/ModelReader.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoIndexedLineSet.h>
#include <xsg/nodes/shapes/SoIndexedPointSet.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoPointSet.h>

using namespace scopix;

namespace
{

const char* const Corners = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 2\n";

class PointsAndLines : public testing::Test
{
protected:
    void open(const char* name, const QByteArray& content)
    {
        ModelReadResult model = readModel(files.write(name, content));
        EXPECT_EQ(model.error, "");
        EXPECT_TRUE(model.notes.empty());
        scene = buildScene(std::move(model.data), name);
    }
    template <class Node>
    std::vector<Node*> all()
    {
        SoSearchAction search;
        search.setType(Node::getClassTypeId());
        search.setLimit(-1);
        std::vector<Node*> found;
        for (const SoPath& path : search.apply(scene.get()))
            found.push_back(static_cast<Node*>(path.getTail()));
        return found;
    }
    static std::vector<int> numbersOf(const SoMFInt32& field)
    {
        return std::vector<int>(field.getValues(), field.getValues() + field.getNum());
    }
    bool isHit(const SbVec3f& from, const SbVec3f& direction)
    {
        return SoRayPickAction().pick(scene.get(), SbRay{from, direction}).has_value();
    }

    ModelFiles files;
    SoRef<SoSeparator> scene;
};

} // namespace

TEST_F(PointsAndLines, ACloudBecomesAPointSetWithItsColours)
{
    open("cloud.ply", "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\n"
                      "property float z\nproperty uchar red\nproperty uchar green\nproperty uchar blue\n"
                      "end_header\n0 0 0 255 0 0\n1 0 0 0 255 0\n0 2 0 0 0 255\n");
    ASSERT_EQ(all<SoPointSet>().size(), 1U);
    ASSERT_EQ(all<SoPoints>().size(), 1U);
    EXPECT_EQ(all<SoPoints>()[0]->points.getNum(), 3);
    EXPECT_EQ(all<SoPointSet>()[0]->colorBinding.getValue(), SoPointSet::PerVertex);
    EXPECT_EQ(all<SoMaterial>()[0]->diffuseColor[1], SbColor(0, 1, 0));
    ASSERT_EQ(all<SoDrawStyle>().size(), 1U);
    EXPECT_GT(all<SoDrawStyle>()[0]->pointSize.getValue(), 1) << "a dot of one pixel is hardly seen";
    const SbBox3f box = SoBoundingBoxAction().getBox(scene.get());
    EXPECT_EQ(box.getMax(), SbVec3f(1, 2, 0));
}

TEST_F(PointsAndLines, ATextOfBarePointsBecomesAPointSet)
{
    open("bare.obj", Corners);
    ASSERT_EQ(all<SoPointSet>().size(), 1U);
    EXPECT_EQ(all<SoPoints>()[0]->points.getNum(), 4);
}

TEST_F(PointsAndLines, LinesGoOnWhereTheyMeet)
{
    open("lines.obj", Corners + QByteArray("l 1 2 3\nl 4 1\n"));
    ASSERT_EQ(all<SoIndexedLineSet>().size(), 1U);
    EXPECT_EQ(all<SoIndexedTriangleSet>().size(), 0U);
    const std::vector<int> index = numbersOf(all<SoIndexedLineSet>()[0]->index);
    ASSERT_EQ(index.size(), 6U);
    EXPECT_EQ(index[3], -1);
    EXPECT_EQ(index[5], index[0]);
    EXPECT_EQ(SoBoundingBoxAction().getBox(scene.get()).getMax(), SbVec3f(1, 1, 2));
}

TEST_F(PointsAndLines, StandBesideSurfaces)
{
    open("mixed.obj", Corners + QByteArray("f 1 2 3\nl 1 4\n"));
    EXPECT_EQ(all<SoIndexedTriangleSet>().size(), 1U);
    EXPECT_EQ(all<SoIndexedLineSet>().size(), 1U);
    EXPECT_TRUE(isHit({0.9F, 0.1F, 5}, {0, 0, -1}));
}
