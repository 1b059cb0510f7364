// SPDX-License-Identifier: MIT
#include "ModelFiles.h"

#include "import/SceneBuilder.h"
#include "import/TransformBuilder.h"
#include "reader/ModelReader.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

using namespace scopix;

namespace
{

SoRef<SoSeparator> open(const char* name)
{
    return buildScene(readModel(shippedModel(name)).data, name);
}

template <class Node>
std::vector<SoPath> findAll(SoNode* root, const char* name = nullptr)
{
    SoSearchAction search;
    search.setType(Node::getClassTypeId());
    if (name)
        search.setName(name);
    search.setLimit(-1);
    return search.apply(root);
}

template <class Node>
Node* find(SoNode* root, const char* name = nullptr)
{
    const auto paths = findAll<Node>(root, name);
    return paths.empty() ? nullptr : static_cast<Node*>(paths.front().getTail());
}

TEST(SceneBuilder, KeepsTheHierarchyWithNamesAndMoves)
{
    const auto scene = open("lighthouse.glb");
    const auto lamps = findAll<SoSeparator>(scene.get(), "Lamp");
    ASSERT_EQ(lamps.size(), 1U);
    QStringList way;
    for (int i = 0; i < lamps[0].getLength(); ++i)
        way << lamps[0].getNode(i)->getName().getString();
    EXPECT_EQ(way.join('/'), "Harbour/Island/Lighthouse/Lantern/Lamp");
    const auto* lamp = static_cast<SoSeparator*>(lamps[0].getTail());
    auto* move = dynamic_cast<SoTransform*>(lamp->getChild(0));
    ASSERT_TRUE(move);
    EXPECT_FLOAT_EQ(move->translation.getValue()[1], 0.52F);
    EXPECT_TRUE(move->rotation.isDefault());
}

TEST(SceneBuilder, KeepsPhysicalMaterials)
{
    const auto scene = open("lighthouse.glb");
    auto* roof = find<SoPhysicalMaterial>(scene.get(), "RoofRed");
    ASSERT_TRUE(roof);
    EXPECT_EQ(roof->baseColor[0], SbVec3f(0.72F, 0.16F, 0.12F));
    EXPECT_NEAR(roof->roughness.getValue(), 0.4F, 1e-3F);
    EXPECT_EQ(roof->metallic.getValue(), 0);
    EXPECT_EQ(roof->alphaMode.getValue(), SoPhysicalMaterial::Opaque);
    EXPECT_GT(find<SoPhysicalMaterial>(scene.get(), "LampLight")->emissiveColor.getValue()[0], 0.9F);
    EXPECT_GT(find<SoPhysicalMaterial>(scene.get(), "Iron")->metallic.getValue(), 0.3F);
    auto* glass = find<SoPhysicalMaterial>(scene.get(), "Glass");
    EXPECT_EQ(glass->alphaMode.getValue(), SoPhysicalMaterial::Blend);
    EXPECT_NEAR(glass->opacity.getValue(), 0.28F, 1e-3F);
    EXPECT_EQ(findAll<SoMaterial>(scene.get()).size(), 0U);
}

TEST(SceneBuilder, PhysicalMaterialsComeWithSurroundings)
{
    EXPECT_EQ(find<SoEnvironmentLight>(open("crate.gltf").get())->intensity.getValue(), 1);
    EXPECT_LT(find<SoEnvironmentLight>(open("lighthouse.glb").get())->intensity.getValue(), 1);
    EXPECT_FALSE(find<SoEnvironmentLight>(open("crate.obj").get()));
    EXPECT_TRUE(find<SoMaterial>(open("crate.obj").get()));
}

TEST(SceneBuilder, SharesMeshesAndMaterials)
{
    const auto scene = open("lighthouse.glb");
    const auto posts = findAll<SoSeparator>(scene.get(), "Post");
    ASSERT_EQ(posts.size(), 12U);
    for (const SoPath& post : posts)
        EXPECT_EQ(post.getTail(), posts[0].getTail());
    const auto iron = findAll<SoPhysicalMaterial>(scene.get(), "Iron");
    ASSERT_GT(iron.size(), 1U);
    for (const SoPath& path : iron)
        EXPECT_EQ(path.getTail(), iron[0].getTail());
}

TEST(SceneBuilder, TakesLightsOver)
{
    const auto scene = open("lighthouse.glb");
    auto* sun = find<SoDirectionalLight>(scene.get());
    ASSERT_TRUE(sun);
    EXPECT_STREQ(sun->getName().getString(), "Sun");
    EXPECT_EQ(scene->getChild(0), sun) << "it shines on what follows it";
    EXPECT_NEAR(sun->intensity.getValue(), 0.95F, 1e-3F);
    EXPECT_LT(sun->direction.getValue()[1], -0.5F) << "turned by its node";
}

void expectPlanks(SoTexture2* texture)
{
    ASSERT_TRUE(texture);
    int width = 0;
    int height = 0;
    int components = 0;
    const unsigned char* bytes = texture->image.getValue(width, height, components);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(width, 64);
    EXPECT_EQ(height, 64);
    ASSERT_EQ(components, 3);
    // The dark joint is the topmost row, so the last one here.
    EXPECT_LT(bytes[3 * 64 * 63 + 30], bytes[3 * 64 * 5 + 30]);
}

TEST(SceneBuilder, ReadsTexturesBesideTheFile)
{
    expectPlanks(find<SoTexture2>(open("crate.gltf").get()));
    expectPlanks(find<SoTexture2>(open("crate.obj").get()));
}

TEST(SceneBuilder, ReadsTexturesInsideTheFile)
{
    const auto scene = open("lighthouse.glb");
    int width = 0;
    int height = 0;
    int components = 0;
    EXPECT_TRUE(find<SoTexture2>(scene.get())->image.getValue(width, height, components));
    EXPECT_EQ(width, 128);
    EXPECT_EQ(height, 256);
}

TEST(SceneBuilder, AMissingTextureLeavesTheModel)
{
    const ModelFiles files;
    for (const char* name : {"crate.obj", "crate.mtl"})
        files.write(name, contentOf(shippedModel(name)));
    const ModelReadResult model = readModel(files.path("crate.obj"));
    ASSERT_TRUE(model.error.isEmpty());
    const auto scene = buildScene(model.data, "crate");
    EXPECT_FALSE(find<SoTexture2>(scene.get()));
    EXPECT_TRUE(find<SoIndexedTriangleSet>(scene.get()));
}

TEST(SceneBuilder, ColoursAtCornersBecomeColoursPerVertex)
{
    const auto scene = open("rainbow.ply");
    auto* shape = find<SoIndexedTriangleSet>(scene.get());
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->colorBinding.getValue(), SoIndexedTriangleSet::PerVertex);
    EXPECT_GT(find<SoMaterial>(scene.get())->diffuseColor.getNum(), 100);
}

TEST(TransformBuilder, MovesTurnsAndStretchesCanBeTunedOneByOne)
{
    SoRef<SoTransform> wanted(new SoTransform);
    wanted->translation.setValue(1, 2, 3);
    wanted->rotation.setValue(SbRotation({0.3F, -0.5F, 0.8F}, 2.9F));
    wanted->scaleFactor.setValue(2, 0.5F, -3);
    const SoRef<SoNode> made(makePlacement(wanted->getMatrix()));
    auto* transform = dynamic_cast<SoTransform*>(made.get());
    ASSERT_TRUE(transform);
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(1, 2, 3));
    for (int i = 0; i < 16; ++i)
        EXPECT_NEAR(transform->getMatrix().getValue()[i], wanted->getMatrix().getValue()[i], 1e-5F);
}

TEST(TransformBuilder, EveryHalfTurnIsFound)
{
    for (const SbVec3f& axis : {SbVec3f(1, 0, 0), SbVec3f(0, 1, 0), SbVec3f(0, 0, 1)}) {
        const SbMatrix matrix = SbMatrix::rotation(SbRotation(axis, 3.14159265F));
        const SoRef<SoNode> made(makePlacement(matrix));
        auto* transform = dynamic_cast<SoTransform*>(made.get());
        ASSERT_TRUE(transform);
        for (int i = 0; i < 16; ++i)
            EXPECT_NEAR(transform->getMatrix().getValue()[i], matrix.getValue()[i], 1e-5F);
    }
}

TEST(TransformBuilder, AShearedMatrixStaysAMatrix)
{
    SbMatrix sheared;
    sheared[0][1] = 0.7F;
    const SoRef<SoNode> made(makePlacement(sheared));
    auto* transform = dynamic_cast<SoMatrixTransform*>(made.get());
    ASSERT_TRUE(transform);
    EXPECT_EQ(transform->matrix.getValue(), sheared);
    SbMatrix collapsed;
    collapsed[1][1] = 0;
    const SoRef<SoNode> flat(makePlacement(collapsed));
    EXPECT_TRUE(dynamic_cast<SoMatrixTransform*>(flat.get()));
}

} // namespace
