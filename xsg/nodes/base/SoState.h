// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbPlane.h>

#include <memory>
#include <vector>

class SoCamera;
class SoDrawStyle;
class SoFog;
class SoInstances;
class SoMaterial;
class SoMaterialTexture;
class SoNormals;
class SoPhysicalMaterial;
class SoPoints;
class SoTexture2;
class SoTextureCoordinates;

struct SoMaterialState {
    SbColor ambient{0.2F, 0.2F, 0.2F};
    SbColor diffuse{0.8F, 0.8F, 0.8F};
    SbColor specular;
    SbColor emissive;
    float shininess = 0.2F;
    float transparency = 0;
    const SoMaterial* diffuseNode =
        nullptr; // where the list of diffuse colours is, for shapes that use several
};

/// A light in world coordinates.
struct SoLightSource {
    enum class Kind { Directional, Point, Spot };
    Kind kind = Kind::Directional;
    SbColor color{1, 1, 1}; // times its intensity
    SbVec3f location;
    SbVec3f direction{0, 0, -1};
    SbVec3f attenuation{1, 0, 0}; // constant, linear and quadratic part
    float cutOffCosine = -1;      // of the half angle of a spot's cone
    float dropOff = 0;            // how much a spot's edge is darker than its middle
    friend bool operator==(const SoLightSource& a, const SoLightSource& b)
    {
        return a.kind == b.kind && a.color == b.color && a.location == b.location &&
               a.direction == b.direction && a.attenuation == b.attenuation &&
               a.cutOffCosine == b.cutOffCosine && a.dropOff == b.dropOff;
    }
};

static_assert(sizeof(SoLightSource) == sizeof(int) + 14 * sizeof(float),
              "without padding, so that it can be compared by its bytes");

/// Light from all around, in world coordinates.
struct SoEnvironment {
    SbColor sky;
    SbColor horizon;
    SbColor ground;
    SbVec3f up;
    friend bool operator==(const SoEnvironment& a, const SoEnvironment& b)
    {
        return a.sky == b.sky && a.horizon == b.horizon && a.ground == b.ground && a.up == b.up;
    }
};

static_assert(sizeof(SoEnvironment) == 12 * sizeof(float),
              "without padding, so that it can be compared by its bytes");

/// Lists that a separator puts back are shared, never changed: adding makes a longer copy.
template <class T>
using SoShared = std::shared_ptr<const std::vector<T>>;

/// What the nodes met so far have set: a traversal carries one along, and a separator puts it back. Nodes
/// change it in SoNode::apply(); shapes and the renderer read it. A plain value, made to be copied.
class SoState
{
public:
    SbMatrix modelMatrix; // from the coordinates of the shapes to the world's
    SoMaterialState material;
    /// Where it is set, it says how surfaces look, and `material` does not.
    const SoPhysicalMaterial* physicalMaterial = nullptr;
    SoShared<const SoMaterialTexture*> materialTextures; // by their use, null for none; null for none at all
    const SoPoints* points = nullptr;
    const SoNormals* normals = nullptr;
    const SoTextureCoordinates* textureCoordinates = nullptr;
    const SoTextureCoordinates* secondTextureCoordinates = nullptr;
    const SoTexture2* texture = nullptr;
    SoShared<SbMatrix> textureMatrix; // one entry, or null for none
    const SoCamera* camera = nullptr; // the last one met
    const SoDrawStyle* drawStyle = nullptr;
    const SoFog* fog = nullptr;
    float complexity = 0.5F;
    float textureQuality = 0.5F;
    SbColor ambientLight{0.2F, 0.2F, 0.2F};
    SoShared<SoLightSource> lights;      // null for none
    SoShared<SoEnvironment> environment; // one entry, or null for none
    SoShared<SbPlane> clipPlanes;        // in world coordinates; what lies on a plane's normal's side stays
    /// Where an instancing group repeats what is below: from the coordinates at the group to the world's, the
    /// model matrix then ending at the group. Null: once.
    SoShared<SbMatrix> instances;
    bool lacksInstances = false; // there would be more than an instancing group takes
    SbVec3f eye; // of the camera, in world coordinates; what chooses by distance compares with it
    bool chooseAll =
        false; // what chooses by distance takes all its children, as for a box that encloses each

    void addLight(const SoLightSource& light) { append(lights, light); }
    void addClipPlane(const SbPlane& plane) { append(clipPlanes, plane); }

    void setMaterialTexture(std::size_t use, std::size_t useCount, const SoMaterialTexture* texture)
    {
        std::vector<const SoMaterialTexture*> all(useCount);
        if (materialTextures)
            all = *materialTextures;
        all[use] = texture;
        materialTextures = std::make_shared<const std::vector<const SoMaterialTexture*>>(std::move(all));
    }

    /// Calls `visit` with each matrix that takes a shape here to the world.
    template <class Visit>
    void forEachInstance(Visit visit) const
    {
        if (!instances) {
            visit(modelMatrix);
            return;
        }
        for (const SbMatrix& instance : *instances)
            visit(modelMatrix * instance);
    }

private:
    template <class T>
    static void append(SoShared<T>& list, const T& value)
    {
        auto longer = list ? std::make_shared<std::vector<T>>(*list) : std::make_shared<std::vector<T>>();
        longer->push_back(value);
        list = std::move(longer);
    }
};
