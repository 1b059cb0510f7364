// SPDX-License-Identifier: MIT
#include "Mill.h"

#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoCylinder.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <cmath>

namespace
{

SoTransform* makePlace(const SbVec3f& place)
{
    auto* transform = new SoTransform;
    transform->translation.setValue(place);
    return transform;
}

SoMaterial* makePaint(const SbColor& color)
{
    auto* material = new SoMaterial;
    material->diffuseColor.setValue(color);
    return material;
}

SoSeparator* makePart(const char* name, const SbVec3f& place, const SbColor& color, SoNode* shape)
{
    auto* part = new SoSeparator;
    part->setName(name);
    part->addChild(makePlace(place));
    part->addChild(makePaint(color));
    part->addChild(shape);
    return part;
}

SoNode* makeTower()
{
    auto* tower = new SoCylinder;
    tower->radius.setValue(1.0F);
    tower->height.setValue(4.0F);
    return tower;
}

SoNode* makeSail(int number)
{
    auto* sail = new SoSeparator;
    auto* turn = new SoTransform;
    turn->rotation.setValue(SbRotation({0, 0, 1}, 1.5707963F * static_cast<float>(number)));
    auto* cube = new SoCube;
    cube->width.setValue(0.4F);
    cube->height.setValue(2.4F);
    cube->depth.setValue(0.1F);
    sail->addChild(turn);
    sail->addChild(makePlace({0, 1.3F, 0}));
    sail->addChild(cube);
    return sail;
}

SoNode* makeStones(int count)
{
    auto* stones = new SoSeparator;
    stones->setName("Stones");
    stones->addChild(makePaint({0.5F, 0.5F, 0.5F}));
    const int side = static_cast<int>(std::ceil(std::sqrt(count)));
    SoRef<SoSphere> stone(new SoSphere);
    stone->radius.setValue(0.2F);
    for (int i = 0; i < count; ++i) {
        auto* place = new SoSeparator;
        const int column = i % side - side / 2;
        const int row = i / side;
        place->addChild(makePlace({2.0F * static_cast<float>(column), -2, -2.0F * static_cast<float>(row)}));
        place->addChild(stone.get());
        stones->addChild(place);
    }
    return stones;
}

} // namespace

Mill::Mill(int stones)
    : root(new SoSeparator)
    , camera(new SoPerspectiveCamera)
    , m_sails(new SoTransform)
{
    root->setName("Mill");
    camera->position.setValue(0, 1, 12);
    root->addChild(camera.get());
    auto* light = new SoDirectionalLight;
    light->direction.setValue({-0.4F, -0.8F, -0.5F});
    root->addChild(light);
    root->addChild(makePart("Tower", {0, 0, 0}, {0.8F, 0.75F, 0.6F}, makeTower()));
    root->addChild(makePart("Roof", {0, 2.6F, 0}, {0.7F, 0.25F, 0.2F}, new SoCone));

    auto* wheel = new SoSeparator;
    wheel->setName("Sails");
    m_sails->setName("Turn");
    m_sails->translation.setValue(0, 2, 1.2F);
    wheel->addChild(m_sails.get());
    wheel->addChild(makePaint({0.9F, 0.9F, 0.85F}));
    for (int i = 0; i < 4; ++i)
        wheel->addChild(makeSail(i));
    root->addChild(wheel);
    root->addChild(makeStones(stones));
}

void Mill::step()
{
    m_angle = std::fmod(m_angle + 0.02F, 6.2831853F);
    m_sails->rotation.setValue(SbRotation({0, 0, 1}, m_angle));
}
