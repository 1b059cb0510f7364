// SPDX-License-Identifier: MIT
// What is exported is there again when it is opened.
#include "export/SceneExport.h"
#include "host/import/ModelFiles.h"
#include "import/SceneBuilder.h"
#include "model/ImageConversion.h"
#include "reader/ModelReader.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoPointLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoSecondTextureCoordinates.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoLineSet.h>
#include <xsg/nodes/shapes/SoScreenText.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/shapes/SoTriangleSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <array>

using namespace scopix;

namespace
{

using Corner = std::array<float, 3>;
using Triangle = std::array<Corner, 3>; // the smallest corner first, in the order in which they go round

Triangle triangleOf(const SoGeometry& geometry, std::size_t at)
{
    Triangle triangle;
    for (std::size_t k = 0; k < 3; ++k) {
        const SbVec3f& point = geometry.points[geometry.index[at + k]];
        triangle[k] = {point[0], point[1], point[2]};
    }
    std::rotate(triangle.begin(), std::min_element(triangle.begin(), triangle.end()), triangle.end());
    return triangle;
}

std::vector<Triangle> trianglesOf(SoNode& root)
{
    std::vector<Triangle> triangles;
    for (const FlatScene::Mesh& mesh : flatten(root).meshes) {
        if (mesh.geometry.kind != SoGeometry::Kind::Triangles)
            continue;
        for (std::size_t i = 0; i + 2 < mesh.geometry.index.size(); i += 3)
            triangles.push_back(triangleOf(mesh.geometry, i));
    }
    return triangles;
}

// As numbers in text come through another program's reader.
bool isNear(const Triangle& a, const Triangle& b)
{
    for (std::size_t k = 0; k < 3; ++k) {
        for (std::size_t i = 0; i < 3; ++i) {
            if (std::abs(a[k][i] - b[k][i]) > 1e-5F * std::max(1.0F, std::abs(a[k][i])))
                return false;
        }
    }
    return true;
}

class Exporting : public testing::Test
{
protected:
    SoRef<SoNode> copyBy(SoNode& root, const char* name)
    {
        const QString path = files.path(name);
        EXPECT_EQ(SceneExport(root, path).write(), "");
        ModelReadResult model = readModel(path);
        EXPECT_EQ(model.error, "");
        return SoRef<SoNode>(buildScene(std::move(model.data), "copy").get());
    }
    void expectSameTriangles(SoNode& root, const char* name)
    {
        const std::vector<Triangle> before = trianglesOf(root);
        const std::vector<Triangle> after = trianglesOf(*copyBy(root, name));
        ASSERT_FALSE(before.empty());
        ASSERT_EQ(before.size(), after.size()) << name;
        for (std::size_t i = 0; i < before.size(); ++i)
            ASSERT_TRUE(isNear(before[i], after[i])) << name << ", triangle " << i;
    }
    static QStringList losses(SoNode& root, const char* name) { return SceneExport(root, name).getLosses(); }

    ModelFiles files;
    SoRef<SoSeparator> root{new SoSeparator};
};

} // namespace

// Seen from where their normals point, corners go round against the clock.
TEST_F(Exporting, MirroredSolidsShowTheirOutside)
{
    auto* mirror = new SoTransform;
    mirror->scaleFactor.setValue(-1, 1, 1);
    root->addChild(mirror);
    root->addChild(new SoCube);
    const FlatScene flat = flatten(*root);
    ASSERT_EQ(flat.meshes.size(), 1U);
    const SoGeometry& geometry = flat.meshes.front().geometry;
    for (std::size_t i = 0; i < geometry.index.size(); i += 3) {
        const auto corner = [&](std::size_t k) { return geometry.points[geometry.index[i + k]]; };
        const SbVec3f outside = cross(corner(1) - corner(0), corner(2) - corner(0));
        EXPECT_GT(outside.dot(geometry.normals[geometry.index[i]]), 0);
    }
}

class ExportedAs : public Exporting, public testing::WithParamInterface<const char*>
{
};

TEST_P(ExportedAs, ShippedModelsKeepTheirTriangles)
{
    for (const char* model : {"lighthouse.glb", "crate.gltf"}) {
        SCOPED_TRACE(model);
        ModelReadResult read = readModel(shippedModel(model));
        ASSERT_EQ(read.error, "");
        expectSameTriangles(*buildScene(std::move(read.data), "model"), GetParam());
    }
}

TEST_P(ExportedAs, SolidsStandWhereTheyAreSeen)
{
    auto* mirror = new SoTransform;
    mirror->translation.setValue(3, 0, 0);
    mirror->scaleFactor.setValue(-2, 1, 0.5F);
    auto* copies = new SoInstances;
    copies->matrices.setValues({SbMatrix(), SbMatrix::translation({0, 5, 0})});
    copies->addChild(new SoCube);
    root->addChild(new SoSphere);
    root->addChild(mirror);
    root->addChild(copies);
    expectSameTriangles(*root, GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, ExportedAs,
                         testing::Values("copy.glb", "copy.gltf", "copy.obj", "copy.ply", "copy.stl"),
                         [](const auto& info) { return std::string(info.param).substr(5); });

TEST_F(Exporting, WavefrontFilesKeepMaterialsAndPictures)
{
    auto* material = new SoMaterial;
    material->setName("Old brass");
    material->diffuseColor.setValue({0.5F, 0.25F, 0.125F});
    material->specularColor.setValue(0.75F, 0.5F, 0.25F);
    material->emissiveColor.setValue(0.125F, 0, 0);
    material->shininess.setValue(0.5F);
    material->transparency.setValue(0.25F);
    auto* texture = new SoTexture2;
    const unsigned char pixels[] = {255, 0, 0, 0, 255, 0, 0, 0, 255, 9, 8, 7};
    texture->image.setValue(2, 2, 3, pixels);
    root->addChild(material);
    root->addChild(texture);
    root->addChild(new SoCube);
    const SoRef<SoNode> copy = copyBy(*root, "copy.obj");
    const FlatScene flat = flatten(*copy);
    ASSERT_EQ(flat.materials.size(), 1U);
    const ExportedMaterial& read = flat.materials.front();
    EXPECT_EQ(read.name, "Old_brass");
    EXPECT_EQ(read.look.diffuse, SbColor(0.5F, 0.25F, 0.125F));
    EXPECT_EQ(read.look.specular, SbColor(0.75F, 0.5F, 0.25F));
    EXPECT_EQ(read.look.emissive, SbColor(0.125F, 0, 0));
    EXPECT_EQ(read.look.shininess, 0.5F);
    EXPECT_EQ(read.look.transparency, 0.25F);
    ASSERT_NE(read.texture, nullptr);
    EXPECT_TRUE(read.texture->image.isSame(texture->image));
}

TEST_F(Exporting, PictureFilesAreReferredToAndNotCopied)
{
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(files.path("bricks.png")));
    auto* texture = new SoTexture2;
    texture->fileName.setValue(files.path("bricks.png").toStdString().c_str());
    root->addChild(texture);
    root->addChild(new SoCube);
    EXPECT_EQ(SceneExport(*root, files.path("copy.obj")).write(), "");
    EXPECT_TRUE(contentOf(files.path("copy.mtl")).contains("map_Kd bricks.png\n"));
    EXPECT_FALSE(QFile::exists(files.path("copy-1.png")));
}

TEST_F(Exporting, PolygonFilesKeepTheColoursOfPoints)
{
    auto* material = new SoMaterial;
    material->diffuseColor.setValue({1, 0.2F, 0});
    root->addChild(material);
    root->addChild(new SoCube);
    const FlatScene flat = flatten(*copyBy(*root, "copy.ply"));
    ASSERT_EQ(flat.meshes.size(), 1U);
    ASSERT_FALSE(flat.meshes.front().geometry.colors.empty());
    for (const SbVec3f& color : flat.meshes.front().geometry.colors)
        EXPECT_EQ(color, SbVec3f(1, 0.2F, 0));
}

TEST_F(Exporting, SaysWhatIsLost)
{
    root->addChild(new SoPointLight);
    root->addChild(new SoPointLight);
    root->addChild(new SoPerspectiveCamera);
    root->addChild(new SoScreenText);
    auto* points = new SoPoints;
    points->points.setValues({{0, 0, 0}, {1, 0, 0}});
    root->addChild(points);
    auto* line = new SoLineSet;
    root->addChild(line);
    root->addChild(new SoCube);
    const QString groups = "groups and transforms, which are applied";
    const QString text = "shapes without a place in space (1)";
    EXPECT_EQ(losses(*root, "a.obj"), (QStringList{groups, "cameras (1)", "lights (2)", text}));
    EXPECT_EQ(losses(*root, "a.STL"), (QStringList{groups, "cameras (1)", "lights (2)",
                                                   "lines and points (1)", "materials (1)", text}));
}

TEST_F(Exporting, WhatCannotBeWrittenIsSaidAndNothingIsReplaced)
{
    root->addChild(new SoCube);
    const QString taken = files.path("folder.stl");
    ASSERT_TRUE(QDir().mkdir(taken));
    EXPECT_EQ(SceneExport(*root, taken).write(),
              QString::fromUtf8("“%1” cannot be written: it is a folder.").arg(taken));
    const QString missing = files.path("missing/a.ply");
    const QString said = SceneExport(*root, missing).write();
    EXPECT_TRUE(said.startsWith(QString::fromUtf8("“%1” cannot be written: ").arg(missing)))
        << said.toStdString();
    files.write("kept.mtl", "mine");
    ASSERT_TRUE(QFile::setPermissions(files.path("kept.mtl"), QFile::ReadOwner));
    EXPECT_NE(SceneExport(*root, files.path("kept.obj")).write(), "");
    EXPECT_EQ(contentOf(files.path("kept.mtl")), "mine");
    EXPECT_FALSE(QFile::exists(files.path("kept.obj")));
}

TEST_F(Exporting, AnEmptySceneIsAFileWithNothingInIt)
{
    for (const QString& ending : SceneExport::endings()) {
        const QString path = files.path(("empty." + ending.toStdString()).c_str());
        EXPECT_EQ(SceneExport(*root, path).write(), "");
        EXPECT_TRUE(QFile::exists(path));
    }
}

namespace
{

template <class Node>
std::vector<const Node*> allOf(SoNode& root)
{
    SoSearchAction search;
    search.setType(Node::getClassTypeId());
    search.setLimit(-1);
    std::vector<const Node*> all;
    for (const SoPath& path : search.apply(&root))
        all.push_back(static_cast<const Node*>(path.getTail()));
    return all;
}

} // namespace

class GltfExporting : public Exporting, public testing::WithParamInterface<const char*>
{
};

TEST_P(GltfExporting, KeepsMaterialsPicturesAndNames)
{
    ModelReadResult read = readModel(shippedModel("crate.gltf"));
    const SoRef<SoNode> crate(buildScene(std::move(read.data), "crate").get());
    const SoRef<SoNode> copy = copyBy(*crate, GetParam());
    // Too long to be printed where they differ.
    EXPECT_TRUE(SoSceneFile::writeText(copy.get()) == SoSceneFile::writeText(crate.get()));
}

TEST_P(GltfExporting, KeepsWhatAModelHas)
{
    ModelReadResult read = readModel(shippedModel("lighthouse.glb"));
    const SoRef<SoNode> model(buildScene(std::move(read.data), "model").get());
    const SoRef<SoNode> once = copyBy(*model, GetParam());
    EXPECT_EQ(allOf<SoPhysicalMaterial>(*once).size(), allOf<SoPhysicalMaterial>(*model).size());
    EXPECT_GT(allOf<SoPhysicalMaterial>(*once).size(), 5U);
    EXPECT_EQ(allOf<SoLight>(*once).size(), allOf<SoLight>(*model).size());
    EXPECT_EQ(allOf<SoCamera>(*once).size(), allOf<SoCamera>(*model).size());
    EXPECT_EQ(allOf<SoIndexedTriangleSet>(*once).size(), allOf<SoIndexedTriangleSet>(*model).size());
    EXPECT_EQ(allOf<SoTransform>(*once).empty(), allOf<SoTransform>(*model).empty());
}

TEST_P(GltfExporting, KeepsAllOfPhysicalMaterials)
{
    auto* material = new SoPhysicalMaterial;
    material->setName("Lacquer");
    material->baseColor.setValues({{0.5F, 0.25F, 0.125F}});
    material->metallic.setValue(0.75F);
    material->roughness.setValue(0.25F);
    material->emissiveColor.setValue({1, 0.5F, 0.25F});
    material->emissiveStrength.setValue(4);
    material->normalScale.setValue(0.5F);
    material->occlusionStrength.setValue(0.75F);
    material->clearCoat.setValue(0.5F);
    material->clearCoatRoughness.setValue(0.125F);
    material->clearCoatNormalScale.setValue(2);
    material->alphaMode.setValue(SoPhysicalMaterial::Mask);
    material->opacity.setValue(0.5F);
    material->alphaCutoff.setValue(0.25F);
    auto* group = new SoSeparator;
    root->addChild(group);
    group->addChild(material);
    for (int use = 0; use < SoMaterialTexture::UseCount; ++use) {
        auto* picture = new SoMaterialTexture;
        const auto shade = static_cast<unsigned char>(10 * use);
        const unsigned char pixels[] = {shade, 1, 2, 3, shade, 5};
        picture->use.setValue(use);
        picture->image.setValue(2, 1, 3, pixels);
        picture->coordinates.setValue(use % 2);
        if (use % 2 == 1)
            picture->wrapT.setValue(SoTexture2::Clamp);
        group->addChild(picture);
    }
    auto* points = new SoPoints;
    points->points.setValues({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    group->addChild(points);
    auto* first = new SoTextureCoordinates;
    first->points.setValues({{0, 0}, {1, 0}, {0, 1}});
    group->addChild(first);
    auto* second = new SoSecondTextureCoordinates;
    second->points.setValues({{0.5F, 0.5F}, {0.75F, 0.5F}, {0.5F, 0.75F}});
    group->addChild(second);
    group->addChild(new SoTriangleSet);

    const SoRef<SoNode> copy = copyBy(*root, GetParam());
    const auto read = allOf<SoPhysicalMaterial>(*copy);
    ASSERT_EQ(read.size(), 1U);
    const auto textOf = [](const SoNode& node) { return SoSceneFile::writeText(const_cast<SoNode*>(&node)); };
    EXPECT_EQ(textOf(*read.front()), textOf(*material));
    const auto pictures = allOf<SoTexture2>(*copy);
    ASSERT_EQ(pictures.size(), std::size_t{SoMaterialTexture::UseCount});
    for (int i = 0; i < SoMaterialTexture::UseCount; ++i) {
        const SoTexture2& picture = *pictures[static_cast<std::size_t>(i)];
        EXPECT_TRUE(picture.image.isSame(static_cast<SoTexture2*>(group->getChild(1 + i))->image)) << i;
        EXPECT_EQ(picture.wrapT.getValue(), i % 2 == 1 ? SoTexture2::Clamp : SoTexture2::Repeat) << i;
        if (i == 0)
            continue; // an SoTexture2
        ASSERT_TRUE(picture.isOfType(SoMaterialTexture::getClassTypeId())) << i;
        EXPECT_EQ(static_cast<const SoMaterialTexture&>(picture).use.getValue(), i);
        EXPECT_EQ(static_cast<const SoMaterialTexture&>(picture).coordinates.getValue(), i % 2);
    }
    const auto coordinates = allOf<SoSecondTextureCoordinates>(*copy);
    ASSERT_EQ(coordinates.size(), 1U);
    EXPECT_EQ(coordinates.front()->points[1], SbVec2f(0.75F, 0.5F));
}

TEST_P(GltfExporting, KeepsHowPicturesAreMoved)
{
    auto* picture = new SoMaterialTexture;
    const unsigned char pixels[] = {1, 2, 3, 4, 5, 6};
    picture->image.setValue(2, 1, 3, pixels);
    picture->translation.setValue(SbVec2f(0.25F, 0.5F));
    picture->rotation.setValue(0.5F);
    picture->scaleFactor.setValue(SbVec2f(2, 3));
    root->addChild(new SoPhysicalMaterial);
    root->addChild(picture);
    root->addChild(new SoCube);
    const SoRef<SoNode> copy = copyBy(*root, GetParam());
    const auto read = allOf<SoMaterialTexture>(*copy);
    ASSERT_EQ(read.size(), 1U);
    EXPECT_FLOAT_EQ(read.front()->rotation.getValue(), 0.5F);
    EXPECT_EQ(read.front()->scaleFactor.getValue(), SbVec2f(2, 3));
    EXPECT_NEAR(read.front()->translation.getValue()[0], 0.25F, 1e-5F);
    EXPECT_NEAR(read.front()->translation.getValue()[1], 0.5F, 1e-5F);
}

TEST_P(GltfExporting, KeepsLightsAndCameras)
{
    auto* sun = new SoDirectionalLight;
    sun->setName("Sun");
    sun->direction.setValue(0, -1, 0);
    sun->intensity.setValue(0.5F);
    sun->color.setValue(1, 0.5F, 0.25F);
    auto* eye = new SoPerspectiveCamera;
    eye->position.setValue(1, 2, 3);
    eye->heightAngle.setValue(0.5F);
    eye->nearDistance.setValue(0.5F);
    eye->farDistance.setValue(50);
    root->addChild(sun);
    root->addChild(eye);
    root->addChild(new SoCube);
    const SoRef<SoNode> copy = copyBy(*root, GetParam());
    const auto suns = allOf<SoDirectionalLight>(*copy);
    ASSERT_EQ(suns.size(), 1U);
    EXPECT_NEAR(suns[0]->direction.getValue()[1], -1, 1e-6);
    EXPECT_EQ(suns[0]->intensity.getValue(), 0.5F);
    EXPECT_EQ(suns[0]->color.getValue(), SbColor(1, 0.5F, 0.25F));
    const auto eyes = allOf<SoPerspectiveCamera>(*copy);
    ASSERT_EQ(eyes.size(), 1U);
    EXPECT_NEAR(eyes[0]->heightAngle.getValue(), 0.5F, 1e-6);
    EXPECT_EQ(eyes[0]->nearDistance.getValue(), 0.5F);
    EXPECT_EQ(eyes[0]->farDistance.getValue(), 50);
}

TEST_P(GltfExporting, OneMeshInManyPlacesIsWrittenOnce)
{
    for (int i = 0; i < 50; ++i) {
        auto* place = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(float(i), 0, 0);
        place->addChild(transform);
        place->addChild(new SoCube);
        root->addChild(place);
    }
    const GltfContent content = toGltf(*root);
    EXPECT_EQ(content.meshes.size(), 1U);
    EXPECT_EQ(content.nodes.size(), 51U);
    expectSameTriangles(*root, GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, GltfExporting, testing::Values("copy.glb", "copy.gltf"),
                         [](const auto& info) { return std::string(info.param).substr(5); });
