// SPDX-License-Identifier: MIT
#include "window/DefaultScene.h"

#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoCylinder.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace scopix
{

namespace
{

SoMaterial* material(const char* name, const SbColor& color, float shininess, float transparency = 0)
{
    auto* result = new SoMaterial;
    result->setName(name);
    result->ambientColor.setValue(color);
    result->diffuseColor.setValue(color);
    result->specularColor.setValue(0.6F, 0.6F, 0.6F);
    result->shininess.setValue(shininess);
    result->transparency.setValue(transparency);
    return result;
}

SoTransform* placed(const SbVec3f& where, const SbRotation& turn = {})
{
    auto* result = new SoTransform;
    result->translation.setValue(where);
    if (turn != SbRotation())
        result->rotation.setValue(turn);
    return result;
}

void addPart(SoSeparator& scene, const char* name, SoTransform* place, SoMaterial* look, SoNode* shape)
{
    auto* part = new SoSeparator;
    scene.addChild(part);
    part->setName(name);
    part->addChild(place);
    part->addChild(look);
    part->addChild(shape);
}

SoCylinder* disc(float radius, float height)
{
    auto* result = new SoCylinder;
    result->radius.setValue(radius);
    result->height.setValue(height);
    return result;
}

SoDirectionalLight* light(const char* name, const SbVec3f& direction, float intensity)
{
    auto* result = new SoDirectionalLight;
    result->setName(name);
    result->direction.setValue(direction);
    result->intensity.setValue(intensity);
    return result;
}

} // namespace

SoRef<SoSeparator> makeDefaultScene()
{
    SoRef<SoSeparator> scene(new SoSeparator);
    scene->setName("Welcome");
    scene->addChild(light("Sun", {-0.4F, -0.8F, -0.5F}, 0.9F));
    scene->addChild(light("Sky", {0.7F, -0.15F, -0.6F}, 0.45F));
    auto* complexity = new SoComplexity;
    complexity->value.setValue(0.8F);
    scene->addChild(complexity);
    addPart(*scene, "Plate", placed({0, -1.1F, 0}), material("Slate", {0.42F, 0.46F, 0.52F}, 0.1F),
            disc(4.2F, 0.2F));
    addPart(*scene, "Cube", placed({-2, 0, 0.6F}, SbRotation({0, 1, 0}, 0.6F)),
            material("Copper", {0.85F, 0.45F, 0.2F}, 0.5F), new SoCube);
    addPart(*scene, "Cone", placed({2, 0, 0.4F}), material("Leaf", {0.25F, 0.62F, 0.32F}, 0.3F), new SoCone);
    addPart(*scene, "Pillar", placed({0.1F, 0.1F, -2}), material("Sand", {0.86F, 0.76F, 0.5F}, 0.2F),
            disc(0.8F, 2.2F));
    addPart(*scene, "Bubble", placed({0, 0.1F, 1}), material("Glass", {0.3F, 0.6F, 0.95F}, 0.9F, 0.45F),
            new SoSphere);
    return scene;
}

} // namespace scopix
