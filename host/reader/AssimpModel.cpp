// SPDX-License-Identifier: MIT
#include "reader/AssimpModel.h"

#include "reader/AssimpMaterial.h"
#include "reader/AssimpMotion.h"
#include "reader/AssimpValues.h"
#include "reader/ModelPictures.h"
#include "reader/PhysicalMaterial.h"

#include <assimp/commonMetaData.h>
#include <assimp/scene.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr float WidestCone = 1.57F; // half of it, in radians
constexpr float SharpestDropOff = 128;

template <class Out, class In, class Convert>
std::vector<Out> converted(const In* values, unsigned count, Convert convert)
{
    std::vector<Out> result;
    if (!values)
        return result;
    result.reserve(count);
    std::transform(values, values + count, std::back_inserter(result), convert);
    return result;
}

// Meshes have faces of one kind by now.
int cornersOf(const aiMesh& mesh)
{
    if (mesh.mPrimitiveTypes & (aiPrimitiveType_TRIANGLE | aiPrimitiveType_POLYGON))
        return 3;
    return mesh.mPrimitiveTypes & aiPrimitiveType_LINE ? 2 : 1;
}

std::vector<SbVec2f> toCoordinates(const aiMesh& mesh, int place)
{
    if (place < 0 || place >= AI_MAX_NUMBER_OF_TEXTURECOORDS)
        return {};
    return converted<SbVec2f>(mesh.mTextureCoords[place], mesh.mNumVertices,
                              [](const aiVector3D& v) { return SbVec2f(v.x, v.y); });
}

ModelData::Mesh toMesh(const aiScene& scene, const aiMesh& mesh)
{
    ModelData::Mesh result;
    result.name = mesh.mName.C_Str();
    result.material = static_cast<int>(mesh.mMaterialIndex);
    const unsigned count = mesh.mNumVertices;
    result.points = converted<SbVec3f>(mesh.mVertices, count, toVec);
    result.normals = converted<SbVec3f>(mesh.mNormals, count, toVec);
    const std::array<int, 2> coordinates = coordinatesOf(*scene.mMaterials[mesh.mMaterialIndex]);
    result.textureCoordinates = toCoordinates(mesh, coordinates[0]);
    result.secondTextureCoordinates = toCoordinates(mesh, coordinates[1]);
    result.colors =
        converted<SbVec3f>(mesh.mColors[0], count, [](const aiColor4D& c) { return SbVec3f(c.r, c.g, c.b); });
    result.corners = cornersOf(mesh);
    const auto corners = static_cast<unsigned>(result.corners);
    result.index.reserve(corners * std::size_t{mesh.mNumFaces});
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        const aiFace& face = mesh.mFaces[i];
        if (face.mNumIndices == corners)
            result.index.insert(result.index.end(), face.mIndices, face.mIndices + corners);
    }
    return result;
}

bool isFinite(const SbVec3f& v)
{
    return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]);
}

// False for a kind that there is no node for.
bool findKind(aiLightSourceType type, ModelData::LightKind& kind)
{
    switch (type) {
    case aiLightSource_AMBIENT:
        kind = ModelData::LightKind::Ambient;
        return true;
    case aiLightSource_DIRECTIONAL:
        kind = ModelData::LightKind::Directional;
        return true;
    case aiLightSource_AREA: // seen from afar, where most of a scene is
    case aiLightSource_POINT:
        kind = ModelData::LightKind::Point;
        return true;
    case aiLightSource_SPOT:
        kind = ModelData::LightKind::Spot;
        return true;
    default:
        return false;
    }
}

// Physical units know no top; a screen does. What is brighter reaches farther instead.
void takeBrightness(const aiLight& light, ModelData::Light& result)
{
    const bool ambient = result.kind == ModelData::LightKind::Ambient;
    const aiColor3D& c = ambient && light.mColorDiffuse.IsBlack() ? light.mColorAmbient : light.mColorDiffuse;
    const float brightest = std::max({c.r, c.g, c.b});
    if (!std::isfinite(brightest))
        return;
    if (brightest > 0)
        result.color = SbColor(c.r / brightest, c.g / brightest, c.b / brightest);
    result.intensity = std::clamp(brightest, 0.0F, 1.0F);
    SbVec3f fading(light.mAttenuationConstant, light.mAttenuationLinear, light.mAttenuationQuadratic);
    if (brightest > 1)
        fading = fading * (1 / brightest);
    if (isFinite(fading) && fading.length() > 0)
        result.attenuation = fading;
}

// As bright half-way between the two cones as the file's linear fading makes it there.
float dropOffOf(float inner, float outer)
{
    if (inner >= outer)
        return 0;
    const float halfWay = std::cos((std::max(inner, 0.0F) + outer) / 2);
    return std::clamp(std::log(0.5F) / std::log(halfWay), 0.0F, SharpestDropOff);
}

ModelData::Light toLight(const aiLight& light, ModelData::LightKind kind)
{
    ModelData::Light result;
    result.kind = kind;
    takeBrightness(light, result);
    result.location = toVec(light.mPosition);
    result.direction = toVec(light.mDirection);
    if (light.mAngleOuterCone > 0 && light.mAngleOuterCone < WidestCone)
        result.cutOffAngle = light.mAngleOuterCone;
    result.dropOff = dropOffOf(light.mAngleInnerCone, result.cutOffAngle);
    return result;
}

// The importer of these multiplies the angle of the height by the aspect, which is no angle of the width, and
// gives the camera its node's place for a second time.
bool isGltf(const aiScene& scene)
{
    aiString format;
    return scene.mMetaData && scene.mMetaData->Get(AI_METADATA_SOURCE_FORMAT, format) &&
           QString::fromUtf8(format.C_Str()).startsWith(QLatin1String("glTF"));
}

ModelData::Camera toCamera(const aiCamera& camera, bool isGltf)
{
    ModelData::Camera result;
    if (!isGltf)
        result.position = toVec(camera.mPosition);
    result.orientation = SbRotation::looking(toVec(camera.mLookAt), toVec(camera.mUp));
    const float aspect = camera.mAspect > 0 ? camera.mAspect : 1;
    result.height = std::max(2 * camera.mOrthographicWidth / aspect, 0.0F);
    if (camera.mHorizontalFOV > 0 && isGltf)
        result.heightAngle = camera.mHorizontalFOV / aspect;
    else if (camera.mHorizontalFOV > 0)
        result.heightAngle = 2 * std::atan(std::tan(camera.mHorizontalFOV / 2) / aspect);
    result.nearDistance = std::max(camera.mClipPlaneNear, 1e-6F);
    result.farDistance = std::max(camera.mClipPlaneFar, 2 * result.nearDistance);
    return result;
}

class NodeCollector
{
public:
    NodeCollector(const aiScene& scene, ModelData& model)
        : m_scene(scene)
        , m_model(model)
    {
    }

    void collect()
    {
        // A list of what is still to do instead of a recursion, since files may be nested deeper than the
        // stack is.
        std::vector<std::pair<const aiNode*, int>> pending{{m_scene.mRootNode, -1}};
        while (!pending.empty()) {
            const auto [node, parent] = pending.back();
            pending.pop_back();
            const int place = add(*node, parent);
            for (unsigned i = node->mNumChildren; i > 0; --i)
                pending.emplace_back(node->mChildren[i - 1], place);
        }
    }

private:
    int add(const aiNode& node, int parent)
    {
        const int place = static_cast<int>(m_model.nodes.size());
        ModelData::Node result;
        result.name = node.mName.C_Str();
        result.matrix = toMatrix(node.mTransformation);
        result.meshes.assign(node.mMeshes, node.mMeshes + node.mNumMeshes);
        result.light = addLight(node.mName);
        result.camera = addCamera(node.mName);
        m_model.nodes.push_back(std::move(result));
        if (parent >= 0)
            m_model.nodes[static_cast<std::size_t>(parent)].children.push_back(place);
        return place;
    }

    // Lights and cameras belong to the node of the same name.
    int addLight(const aiString& name)
    {
        for (unsigned i = 0; i < m_scene.mNumLights; ++i) {
            const aiLight& light = *m_scene.mLights[i];
            ModelData::LightKind kind{};
            if (light.mName == name && findKind(light.mType, kind)) {
                m_model.lights.push_back(toLight(light, kind));
                return static_cast<int>(m_model.lights.size()) - 1;
            }
        }
        return -1;
    }

    int addCamera(const aiString& name)
    {
        for (unsigned i = 0; i < m_scene.mNumCameras; ++i) {
            if (m_scene.mCameras[i]->mName == name) {
                m_model.cameras.push_back(toCamera(*m_scene.mCameras[i], isGltf(m_scene)));
                return static_cast<int>(m_model.cameras.size()) - 1;
            }
        }
        return -1;
    }

    const aiScene& m_scene;
    ModelData& m_model;
};

} // namespace

ModelData fromAssimp(const aiScene& scene, ModelPictures& pictures)
{
    ModelData model;
    for (unsigned i = 0; i < scene.mNumMeshes; ++i)
        model.meshes.push_back(toMesh(scene, *scene.mMeshes[i]));
    for (unsigned i = 0; i < scene.mNumMaterials; ++i)
        model.materials.push_back(fromAssimp(*scene.mMaterials[i], pictures));
    model.pictures = pictures.takePictures();
    if (scene.mRootNode)
        NodeCollector(scene, model).collect();
    model.motion = motionOf(scene, model);
    return model;
}

} // namespace scopix
