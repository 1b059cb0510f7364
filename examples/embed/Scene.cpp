// SPDX-License-Identifier: MIT
#include "Scene.h"

#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoCylinder.h>

namespace
{

SoSeparator* makePart(const char* name, const SbVec3f& place, const SbColor& color, SoNode* shape)
{
    auto* part = new SoSeparator;
    part->setName(name);
    auto* transform = new SoTransform;
    transform->translation.setValue(place);
    auto* material = new SoMaterial;
    material->diffuseColor.setValue(color);
    part->addChild(transform);
    part->addChild(material);
    part->addChild(shape);
    return part;
}

SoNode* makePlate()
{
    auto* plate = new SoCylinder;
    plate->radius.setValue(3.5F);
    plate->height.setValue(0.2F);
    return plate;
}

} // namespace

Scene::Scene()
    : root(new SoSeparator)
    , plate(new SoTransform)
{
    root->setName("Turntable");
    plate->setName("Turn");
    auto* light = new SoDirectionalLight;
    light->direction.setValue({-0.4F, -0.8F, -0.5F});
    root->addChild(light);
    root->addChild(plate.get());
    root->addChild(makePart("Plate", {0, -1.1F, 0}, {0.5F, 0.5F, 0.55F}, makePlate()));
    root->addChild(makePart("Cube", {-1.6F, 0, 0}, {0.8F, 0.4F, 0.2F}, new SoCube));
    root->addChild(makePart("Cone", {1.6F, 0, 0}, {0.2F, 0.6F, 0.3F}, new SoCone));
}
