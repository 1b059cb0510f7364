// SPDX-License-Identifier: MIT
#include "import/SceneBuilder.h"

#include "import/MotionBuilder.h"
#include "import/PhysicalMaterials.h"
#include "text/NodeText.h"
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoAmbientLight.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoPointLight.h>
#include <xsg/nodes/lights/SoSpotLight.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoSecondTextureCoordinates.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/shapes/SoIndexedLineSet.h>
#include <xsg/nodes/shapes/SoIndexedPointSet.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoPointSet.h>
#include <xsg/nodes/transforms/SoTransformation.h>

#include <QFileInfo>

#include <numeric>

namespace scopix
{

namespace
{

void setName(SoNode& node, const std::string& utf8)
{
    if (!utf8.empty())
        node.setName(toName(QString::fromStdString(utf8)));
}

template <class Items>
auto& at(Items& items, int place)
{
    return items[static_cast<std::size_t>(place)];
}

class Builder
{
public:
    explicit Builder(ModelData& model)
        : m_model(model)
        , m_materials(model.materials.size())
        , m_pictures(model.pictures.size())
        , m_meshes(model.meshes.size())
        , m_motion(model)
    {
    }

    SoRef<SoSeparator> build()
    {
        // Children stand behind their parents, so from behind every child is ready before its parent needs
        // it.
        std::vector<SoRef<SoSeparator>> nodes(m_model.nodes.size());
        for (std::size_t i = nodes.size(); i > 0; --i)
            nodes[i - 1] = buildNode(static_cast<int>(i - 1), nodes);
        if (nodes.empty())
            return SoRef<SoSeparator>(new SoSeparator);
        const int lightCount = addLights(*nodes.front());
        if (m_physical.areAny())
            nodes.front()->insertChild(PhysicalMaterials::makeSurroundings(lightCount > 0), lightCount);
        m_motion.finish(*nodes.front());
        return nodes.front();
    }

private:
    // In a file a light shines on everything; here on what follows it. So all lights come first.
    int addLights(SoSeparator& scene)
    {
        std::vector<SbMatrix> toWorld(m_model.nodes.size());
        int count = 0;
        for (std::size_t i = 0; i < m_model.nodes.size(); ++i) {
            const ModelData::Node& node = m_model.nodes[i];
            toWorld[i] = node.matrix * toWorld[i]; // what is in there yet is the parent's
            for (const int child : node.children)
                at(toWorld, child) = toWorld[i];
            if (node.light >= 0)
                scene.insertChild(makeLight(node, toWorld[i]), count++);
        }
        return count;
    }

    static bool isBare(const ModelData::Node& node)
    {
        return node.light >= 0 && node.meshes.empty() && node.children.empty() && node.camera < 0;
    }

    SoRef<SoSeparator> buildNode(int place, const std::vector<SoRef<SoSeparator>>& nodes)
    {
        const ModelData::Node& node = at(m_model.nodes, place);
        SoRef<SoSeparator> result(new SoSeparator);
        setName(*result, node.name);
        if (SoTransformation* transform = m_motion.makeTransform(place))
            result->addChild(transform);
        if (node.camera >= 0)
            result->addChild(makeCamera(at(m_model.cameras, node.camera)));
        for (const int mesh : node.meshes)
            result->addChild(meshNode(mesh, place).get());
        for (const int child : node.children) {
            if (m_motion.isMover(child) || !isBare(at(m_model.nodes, child)))
                result->addChild(at(nodes, child).get());
        }
        return result;
    }

    SoRef<SoSeparator> meshNode(int mesh, int inNode)
    {
        SoRef<SoSeparator>& node = at(m_meshes, mesh);
        if (node && m_motion.isSkinned(mesh))
            return bentCopy(*node, mesh, inNode);
        if (!node)
            node = makeMesh(mesh, inNode);
        return node;
    }

    // With all the same but the skin, which depends on where it stands.
    SoRef<SoSeparator> bentCopy(const SoSeparator& mesh, int place, int inNode)
    {
        SoRef<SoSeparator> result(new SoSeparator);
        result->setName(mesh.getName());
        for (SoNode* child : mesh.getChildren()) {
            const SoType type = child->getTypeId();
            if (child->asShape())
                m_motion.bend(*result, place, inNode);
            if (type != SoSkin::getClassTypeId() && type != SoMorph::getClassTypeId())
                result->addChild(child);
        }
        return result;
    }

    SoRef<SoSeparator> makeMesh(int place, int inNode)
    {
        ModelData::Mesh& mesh = at(m_model.meshes, place);
        SoRef<SoSeparator> result(new SoSeparator);
        setName(*result, mesh.name);
        const bool colored = !mesh.colors.empty();
        addLook(*result, mesh);
        const std::size_t pointCount = mesh.points.size();
        auto* points = new SoPoints;
        result->addChild(points);
        points->points.setValues(std::move(mesh.points));
        if (!mesh.normals.empty()) {
            auto* normals = new SoNormals;
            result->addChild(normals);
            normals->vectors.setValues(std::move(mesh.normals));
        }
        if (!mesh.textureCoordinates.empty()) {
            auto* coordinates = new SoTextureCoordinates;
            result->addChild(coordinates);
            coordinates->points.setValues(std::move(mesh.textureCoordinates));
        }
        if (!mesh.secondTextureCoordinates.empty()) {
            auto* coordinates = new SoSecondTextureCoordinates;
            result->addChild(coordinates);
            coordinates->points.setValues(std::move(mesh.secondTextureCoordinates));
        }
        if (mesh.corners == 1)
            result->addChild(makeDots());
        m_motion.bend(*result, place, inNode);
        SoVertexShape* shape = makeShape(mesh, pointCount);
        result->addChild(shape);
        if (colored)
            shape->colorBinding.setValue(SoVertexShape::PerVertex);
        return result;
    }

    void addLook(SoSeparator& group, ModelData::Mesh& mesh)
    {
        if (mesh.material >= 0 && at(m_model.materials, mesh.material).physical.isPhysical != 0) {
            m_physical.addTo(group, mesh.material, mesh);
            return;
        }
        if (!mesh.colors.empty())
            group.addChild(makeColored(mesh));
        else if (mesh.material >= 0)
            group.addChild(materialNode(mesh.material));
        if (mesh.material >= 0 && !mesh.textureCoordinates.empty())
            addTexture(group, at(m_model.materials, mesh.material));
    }

    // Points of one pixel are hardly seen where they are few.
    static SoDrawStyle* makeDots()
    {
        auto* style = new SoDrawStyle;
        style->pointSize.setValue(3);
        return style;
    }

    static SoVertexShape* makeShape(ModelData::Mesh& mesh, std::size_t pointCount)
    {
        if (mesh.corners == 1)
            return makePoints(mesh, pointCount);
        if (mesh.corners == 2)
            return filled(new SoIndexedLineSet, joinedLines(mesh.index));
        return filled(new SoIndexedTriangleSet, std::move(mesh.index));
    }

    template <class Shape>
    static Shape* filled(Shape* shape, std::vector<std::int32_t> index)
    {
        shape->index.setValues(std::move(index));
        return shape;
    }

    // Clouds, which are large, mostly have each point once and in order.
    static SoVertexShape* makePoints(ModelData::Mesh& mesh, std::size_t pointCount)
    {
        std::vector<std::int32_t> all(mesh.index.size());
        std::iota(all.begin(), all.end(), 0);
        const bool hasAll = all == mesh.index && all.size() == pointCount;
        return hasAll ? static_cast<SoVertexShape*>(new SoPointSet)
                      : filled(new SoIndexedPointSet, std::move(mesh.index));
    }

    // Of pairs of points: each pair that begins where the one before ends goes on with its line.
    static std::vector<std::int32_t> joinedLines(const std::vector<std::int32_t>& pairs)
    {
        std::vector<std::int32_t> lines;
        for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
            const bool goesOn = !lines.empty() && lines.back() == pairs[i];
            if (!goesOn && !lines.empty())
                lines.insert(lines.end(), -1);
            const auto* pair = pairs.data() + i;
            lines.insert(lines.end(), goesOn ? pair + 1 : pair, pair + 2);
        }
        return lines;
    }

    // The points' own colours stand in a material of the mesh's own.
    SoMaterial* makeColored(ModelData::Mesh& mesh)
    {
        SoMaterial* material =
            makeMaterial(mesh.material >= 0 ? at(m_model.materials, mesh.material) : ModelData::Material());
        material->diffuseColor.setValues(std::move(mesh.colors));
        return material;
    }

    SoNode* materialNode(int place)
    {
        SoRef<SoMaterial>& node = at(m_materials, place);
        if (!node)
            node = SoRef<SoMaterial>(makeMaterial(at(m_model.materials, place)));
        return node.get();
    }

    static SoMaterial* makeMaterial(const ModelData::Material& material)
    {
        auto* result = new SoMaterial;
        setName(*result, material.name);
        result->ambientColor.setValue(material.ambient);
        result->diffuseColor.setValue(material.diffuse);
        result->specularColor.setValue(material.specular);
        result->emissiveColor.setValue(material.emissive);
        result->shininess.setValue(material.shininess);
        result->transparency.setValue(material.transparency);
        return result;
    }

    void addTexture(SoSeparator& group, const ModelData::Material& material)
    {
        if (material.picture < 0)
            return;
        SoRef<SoTexture2>& node = at(m_pictures, material.picture);
        std::vector<unsigned char>& bytes = at(m_model.pictures, material.picture).bytes;
        if (!node && !bytes.empty())
            node = SoRef<SoTexture2>(makeTexture(at(m_model.pictures, material.picture), material));
        std::vector<unsigned char>().swap(bytes); // the node has its own
        if (node)
            group.addChild(node.get());
    }

    static SoTexture2* makeTexture(const ModelData::Picture& picture, const ModelData::Material& material)
    {
        auto* result = new SoTexture2;
        setName(*result, QFileInfo(QString::fromStdString(picture.name)).completeBaseName().toStdString());
        result->image.setValue(picture.width, picture.height, picture.components, picture.bytes.data());
        if (material.clampS)
            result->wrapS.setValue(SoTexture2::Clamp);
        if (material.clampT)
            result->wrapT.setValue(SoTexture2::Clamp);
        return result;
    }

    SoNode* makeLight(const ModelData::Node& node, const SbMatrix& toWorld) const
    {
        const ModelData::Light& light = at(m_model.lights, node.light);
        SoNode* result = makeLight(light, toWorld.multPoint(light.location),
                                   toWorld.multDirection(light.direction).normalized());
        setName(*result, node.name);
        return result;
    }

    static SoNode* makeLight(const ModelData::Light& light, const SbVec3f& location, const SbVec3f& direction)
    {
        using Kind = ModelData::LightKind;
        if (light.kind == Kind::Ambient)
            return shining(new SoAmbientLight, light);
        if (light.kind == Kind::Directional) {
            auto* result = shining(new SoDirectionalLight, light);
            result->direction.setValue(direction);
            return result;
        }
        if (light.kind == Kind::Point)
            return placed(new SoPointLight, light, location);
        auto* result = placed(new SoSpotLight, light, location);
        result->direction.setValue(direction);
        result->cutOffAngle.setValue(light.cutOffAngle);
        result->dropOff.setValue(light.dropOff);
        return result;
    }

    template <class Light>
    static Light* shining(Light* node, const ModelData::Light& light)
    {
        node->color.setValue(light.color);
        node->intensity.setValue(light.intensity);
        return node;
    }

    template <class Light>
    static Light* placed(Light* node, const ModelData::Light& light, const SbVec3f& location)
    {
        node->location.setValue(location);
        node->attenuation.setValue(light.attenuation);
        return shining(node, light);
    }

    // Within a switch that leaves it out: many models carry a camera from when they were made, which shows
    // nothing or too little of them.
    static SoNode* makeCamera(const ModelData::Camera& camera)
    {
        SoCamera* eye = makeLens(camera);
        eye->position.setValue(camera.position);
        eye->orientation.setValue(camera.orientation);
        eye->nearDistance.setValue(camera.nearDistance);
        eye->farDistance.setValue(camera.farDistance);
        auto* result = new SoSwitch;
        result->addChild(eye);
        return result;
    }

    static SoCamera* makeLens(const ModelData::Camera& camera)
    {
        if (camera.height > 0) {
            auto* result = new SoOrthographicCamera;
            result->height.setValue(camera.height);
            return result;
        }
        auto* result = new SoPerspectiveCamera;
        result->heightAngle.setValue(camera.heightAngle);
        return result;
    }

    ModelData& m_model;
    PhysicalMaterials m_physical{m_model};
    std::vector<SoRef<SoMaterial>> m_materials;
    std::vector<SoRef<SoTexture2>> m_pictures;
    std::vector<SoRef<SoSeparator>> m_meshes;
    MotionBuilder m_motion;
};

} // namespace

SoRef<SoSeparator> buildScene(ModelData model, const std::string& name)
{
    SoRef<SoSeparator> scene = Builder(model).build();
    if (scene->getName().getLength() == 0)
        setName(*scene, name);
    return scene;
}

} // namespace scopix
