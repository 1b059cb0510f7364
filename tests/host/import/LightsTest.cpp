// SPDX-License-Identifier: MIT
// Lights and cameras of a file become nodes that light and see the same.
#include "ModelFiles.h"

#include "import/SceneBuilder.h"
#include "reader/AssimpModel.h"
#include "reader/ModelPictures.h"
#include "reader/ModelReader.h"
#include "viewport/SceneCamera.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoAmbientLight.h>
#include <xsg/nodes/lights/SoPointLight.h>
#include <xsg/nodes/lights/SoSpotLight.h>

#include <assimp/scene.h>

#include <cmath>

using namespace scopix;

namespace
{

template <class Node>
Node* find(SoNode* root)
{
    SoSearchAction search;
    search.setType(Node::getClassTypeId());
    return search.apply(root).empty() ? nullptr : static_cast<Node*>(search.getPaths().front().getTail());
}

// The crate, with lights and cameras of this text, each on a node that is moved by (1, 2, 3) within one that
// is stretched twofold.
class Lights : public testing::Test
{
protected:
    SoRef<SoSeparator> open(const QByteArray& extensions, const QByteArray& node)
    {
        QJsonObject model = QJsonDocument::fromJson(contentOf(shippedModel("crate.gltf"))).object();
        QJsonArray nodes = model["nodes"].toArray();
        QJsonObject own = QJsonDocument::fromJson(node).object();
        own["name"] = "Own";
        own["translation"] = QJsonArray{1, 2, 3};
        nodes.append(own);
        nodes.append(QJsonObject{
            {"name", "Outer"}, {"scale", QJsonArray{2, 2, 2}}, {"children", QJsonArray{nodes.size() - 1}}});
        model["nodes"] = nodes;
        QJsonArray scenes = model["scenes"].toArray();
        QJsonObject scene = scenes[0].toObject();
        QJsonArray roots = scene["nodes"].toArray();
        roots.append(nodes.size() - 1);
        scene["nodes"] = roots;
        scenes[0] = scene;
        model["scenes"] = scenes;
        const QJsonObject more = QJsonDocument::fromJson(extensions).object();
        for (const QString& key : more.keys())
            model[key] = more[key];
        for (const char* beside : {"crate.bin", "crate.png"})
            files.write(beside, contentOf(shippedModel(beside)));
        const ModelReadResult read = readModel(files.write("lit.gltf", QJsonDocument(model).toJson()));
        EXPECT_EQ(read.error, "");
        return buildScene(read.data, "lit");
    }
    SoRef<SoSeparator> openLight(const QByteArray& light)
    {
        return open(
            R"({"extensionsUsed":["KHR_lights_punctual"],"extensions":{"KHR_lights_punctual":{"lights":[)" +
                light + "]}}}",
            R"({"extensions":{"KHR_lights_punctual":{"light":0}}})");
    }
    ModelFiles files;
};

TEST_F(Lights, APointLightShinesFromItsPlace)
{
    const auto scene = openLight(R"({"type":"point","color":[1,0.5,0.25],"intensity":0.5})");
    auto* light = find<SoPointLight>(scene.get());
    ASSERT_TRUE(light);
    EXPECT_STREQ(light->getName().getString(), "Own");
    EXPECT_EQ(scene->getChild(0), light) << "it shines on what follows it";
    EXPECT_EQ(light->location.getValue(), SbVec3f(2, 4, 6));
    EXPECT_EQ(light->color.getValue(), SbVec3f(1, 0.5F, 0.25F));
    EXPECT_FLOAT_EQ(light->intensity.getValue(), 0.5F);
}

TEST_F(Lights, ABrighterLightReachesFarther)
{
    const auto strengthAt = [this](const char* intensity, float distance) {
        const auto scene = openLight(QByteArray(R"({"type":"point","intensity":)") + intensity + "}");
        auto* light = find<SoPointLight>(scene.get());
        const SbVec3f fading = light->attenuation.getValue();
        EXPECT_LE(light->intensity.getValue(), 1);
        return light->intensity.getValue() /
               (fading[0] + fading[1] * distance + fading[2] * distance * distance);
    };
    EXPECT_NEAR(strengthAt("80", 4) / strengthAt("0.8", 4), 100, 0.1);
}

TEST_F(Lights, ASpotLightShinesWithinItsCone)
{
    const auto scene =
        openLight(R"({"type":"spot","intensity":0.75,"spot":{"innerConeAngle":0.2,"outerConeAngle":0.6}})");
    auto* light = find<SoSpotLight>(scene.get());
    ASSERT_TRUE(light);
    EXPECT_EQ(light->location.getValue(), SbVec3f(2, 4, 6));
    EXPECT_NEAR(light->direction.getValue()[2], -1, 1e-6);
    EXPECT_FLOAT_EQ(light->cutOffAngle.getValue(), 0.6F);
    EXPECT_NEAR(std::pow(std::cos(0.4F), light->dropOff.getValue()), 0.5F, 1e-3F) << "half-way";
}

TEST_F(Lights, ASpotLightWithoutASoftEdgeHasNoDropOff)
{
    const auto scene =
        openLight(R"({"type":"spot","intensity":0.75,"spot":{"innerConeAngle":0.6,"outerConeAngle":0.6}})");
    auto* light = find<SoSpotLight>(scene.get());
    ASSERT_TRUE(light);
    EXPECT_EQ(light->dropOff.getValue(), 0);
}

TEST_F(Lights, ACameraWithoutPerspectiveKeepsItsHeight)
{
    const auto scene = open(
        R"({"cameras":[{"type":"orthographic","orthographic":{"xmag":3,"ymag":1.5,"znear":0.5,"zfar":50}}]})",
        R"({"camera":0})");
    auto* camera = find<SoOrthographicCamera>(scene.get());
    ASSERT_TRUE(camera);
    EXPECT_FLOAT_EQ(camera->height.getValue(), 3) << "twice the half of it";
    EXPECT_FLOAT_EQ(camera->nearDistance.getValue(), 0.5F);
    EXPECT_FLOAT_EQ(camera->farDistance.getValue(), 50);
}

TEST_F(Lights, ACameraWithPerspectiveKeepsItsAngle)
{
    const auto scene =
        open(R"({"cameras":[{"type":"perspective","perspective":{"aspectRatio":2,"yfov":0.8,"znear":0.5}}]})",
             R"({"camera":0})");
    auto* camera = find<SoPerspectiveCamera>(scene.get());
    ASSERT_TRUE(camera);
    EXPECT_NEAR(camera->heightAngle.getValue(), 0.8F, 1e-4F);
}

TEST_F(Lights, ACameraIsLookedThroughOnceChosenAndStandsWhereItsNodeDoes)
{
    const auto scene = open(R"({"cameras":[{"type":"perspective","perspective":{"yfov":0.8,"znear":0.5}}]})",
                            R"({"camera":0})");
    EXPECT_FALSE(findSceneCamera(scene.get()).camera);
    auto* choice = find<SoSwitch>(scene.get());
    ASSERT_TRUE(choice);
    choice->whichChild.setValue(0);
    const SceneCamera seen = findSceneCamera(scene.get());
    ASSERT_TRUE(seen.camera);
    EXPECT_EQ(seen.toWorld.multPoint(seen.camera->position.getValue()), SbVec3f(2, 4, 6));
}

TEST(SceneCameras, StandUpright)
{
    aiScene scene;
    scene.mRootNode = new aiNode("Eye");
    scene.mNumCameras = 1;
    scene.mCameras = new aiCamera*[1];
    auto* eye = scene.mCameras[0] = new aiCamera;
    eye->mName = "Eye";
    eye->mPosition = {1, 2, 3};
    eye->mLookAt = {0, 5, 0};
    eye->mUp = {2, 0, 0};
    ModelPictures pictures(scene, {}, xsg::PictureBudget::preferred());
    ModelData model = fromAssimp(scene, pictures);
    const auto built = buildScene(model, "eye");
    auto* camera = find<SoPerspectiveCamera>(built.get());
    ASSERT_TRUE(camera);
    EXPECT_EQ(camera->position.getValue(), SbVec3f(1, 2, 3));
    EXPECT_LT((camera->getDirection() - SbVec3f(0, 1, 0)).length(), 1e-6F);
    EXPECT_LT((camera->orientation.getValue().multVec({0, 1, 0}) - SbVec3f(1, 0, 0)).length(), 1e-6F);
}

TEST(SceneLights, EveryKindHasItsNode)
{
    ModelData model;
    model.nodes.resize(2);
    model.nodes[0].children = {1};
    model.nodes[1].light = 0;
    model.lights.resize(1);
    model.lights[0].kind = ModelData::LightKind::Ambient;
    model.lights[0].color = {0.5F, 1, 0};
    model.lights[0].intensity = 0.25F;
    const auto scene = buildScene(model, "ambient");
    auto* light = find<SoAmbientLight>(scene.get());
    ASSERT_TRUE(light);
    EXPECT_EQ(light->color.getValue(), SbVec3f(0.5F, 1, 0));
    EXPECT_EQ(light->intensity.getValue(), 0.25F);
}

} // namespace
