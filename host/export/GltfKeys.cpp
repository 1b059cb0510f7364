// SPDX-License-Identifier: MIT
#include "export/GltfKeys.h"

#include "export/ExportNames.h"

#include <xsg/nodes/animation/KeySampling.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

using Keys = GltfContent::Keys;

bool isGood(const Keys& keys)
{
    const auto finite = [](float number) { return std::isfinite(number); };
    return !keys.times.empty() && std::all_of(keys.times.begin(), keys.times.end(), finite) &&
           std::all_of(keys.values.begin(), keys.values.end(), finite) &&
           std::adjacent_find(keys.times.begin(), keys.times.end(), std::greater_equal<>()) ==
               keys.times.end();
}

// What is shown at 0 takes the place of the keys before it. A curve's bends would be others: false.
bool beginAtZero(Keys& keys, const GltfProperty& property)
{
    const auto after = std::upper_bound(keys.times.begin(), keys.times.end(), 0.0F);
    if (keys.times.front() >= 0)
        return true;
    if (keys.interpolation == SoTrack::Cubic)
        return false;
    const auto width = static_cast<std::size_t>(property.width);
    xsg::KeyList list;
    list.times = keys.times.data();
    list.count = keys.times.size();
    list.values = keys.values.data();
    list.width = width;
    list.between =
        keys.interpolation == SoTrack::Step ? xsg::KeyList::Between::Step : xsg::KeyList::Between::Linear;
    list.isRotation = property.width == 4;
    std::vector<float> first(width);
    xsg::sampleKeys(list, 0, first.data());
    const auto gone = after - keys.times.begin();
    keys.values.erase(keys.values.begin(), keys.values.begin() + gone * property.width);
    keys.values.insert(keys.values.begin(), first.begin(), first.end());
    keys.times.erase(keys.times.begin(), after);
    keys.times.insert(keys.times.begin(), 0);
    return true;
}

} // namespace

GltfProperty propertyOf(const SoTrack& track)
{
    const SoNode* target = track.target.getNode();
    const SoField* field = track.findTarget();
    if (target && isA<SoTransform>(*target)) {
        const auto& transform = static_cast<const SoTransform&>(*target);
        if (field == &transform.translation)
            return {"translation", "VEC3", 3};
        if (field == &transform.rotation)
            return {"rotation", "VEC4", 4};
        if (field == &transform.scaleFactor)
            return {"scale", "VEC3", 3};
    }
    if (target && isA<SoMorph>(*target)) {
        const auto& morph = static_cast<const SoMorph&>(*target);
        if (field == &morph.weights)
            return {"weights", "SCALAR", morph.weights.getNum()};
    }
    return {nullptr, nullptr, 0};
}

std::optional<Keys> keysOf(const SoTrack& track)
{
    const GltfProperty property = propertyOf(track);
    if (!property.name || property.width == 0 || track.getWidth() != property.width)
        return {};
    Keys keys;
    keys.interpolation = track.interpolation.getValue();
    keys.type = property.type;
    keys.times.assign(track.times.getValues(), track.times.getValues() + track.times.getNum());
    keys.values.assign(track.values.getValues(), track.values.getValues() + track.values.getNum());
    if (!isGood(keys) || !beginAtZero(keys, property))
        return {};
    return keys;
}

} // namespace scopix
