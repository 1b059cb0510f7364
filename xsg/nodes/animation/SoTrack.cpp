// SPDX-License-Identifier: MIT
#include <xsg/nodes/animation/SoTrack.h>

#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFVec2f.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/fields/SoSFVec4f.h>
#include <xsg/nodes/animation/KeySampling.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <cmath>

template class SoTyped<SoTrack, SoNode>;

namespace
{

constexpr int MostNumbers = 4; // of a field of one value

template <class Field, class Make>
void assign(SoField& to, Make make)
{
    auto& field = static_cast<Field&>(to);
    const auto value = make();
    if (!(field.getValue() == value))
        field.setValue(value);
}

void assignList(SoMFFloat& to, const float* numbers, int count)
{
    if (to.getNum() == count && std::equal(numbers, numbers + count, to.getValues()))
        return;
    to.setValues(0, count, numbers);
}

std::int32_t toWhole(float number)
{
    return std::isnan(number) ? 0
                              : static_cast<std::int32_t>(std::clamp(number, -2147483648.0F, 2147483520.0F));
}

struct Kind {
    SoType type;
    int width;
    void (*write)(SoField& to, const float* n);
};

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> all{
        {SoSFVec3f::getClassTypeId(), 3,
         [](SoField& to, const float* n) {
             assign<SoSFVec3f>(to, [n] { return SbVec3f(n[0], n[1], n[2]); });
         }},
        {SoSFRotation::getClassTypeId(), 4,
         [](SoField& to, const float* n) { assign<SoSFRotation>(to, [n] { return SbRotation(n); }); }},
        {SoSFFloat::getClassTypeId(), 1,
         [](SoField& to, const float* n) { assign<SoSFFloat>(to, [n] { return n[0]; }); }},
        {SoSFColor::getClassTypeId(), 3,
         [](SoField& to, const float* n) {
             assign<SoSFColor>(to, [n] { return SbColor(n[0], n[1], n[2]); });
         }},
        {SoSFVec2f::getClassTypeId(), 2,
         [](SoField& to, const float* n) { assign<SoSFVec2f>(to, [n] { return SbVec2f(n[0], n[1]); }); }},
        {SoSFVec4f::getClassTypeId(), 4,
         [](SoField& to, const float* n) {
             assign<SoSFVec4f>(to, [n] { return SbVec4f(n[0], n[1], n[2], n[3]); });
         }},
        {SoSFInt32::getClassTypeId(), 1,
         [](SoField& to, const float* n) { assign<SoSFInt32>(to, [n] { return toWhole(n[0]); }); }},
        {SoSFBool::getClassTypeId(), 1,
         [](SoField& to, const float* n) { assign<SoSFBool>(to, [n] { return n[0] != 0; }); }}};
    return all;
}

xsg::KeyList::Between betweenOf(const SoTrack& track)
{
    switch (track.interpolation.getValue()) {
    case SoTrack::Step:
        return xsg::KeyList::Between::Step;
    case SoTrack::Cubic:
        return xsg::KeyList::Between::Cubic;
    default:
        return xsg::KeyList::Between::Linear;
    }
}

const Kind* findKind(const SoField& field)
{
    const auto& all = kinds();
    const auto kind = std::find_if(all.begin(), all.end(),
                                   [&](const Kind& each) { return each.type == field.getTypeId(); });
    return kind == all.end() ? nullptr : &*kind;
}

} // namespace

SoEnumTablePtr SoTrack::getInterpolationNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"STEP", Step}, {"LINEAR", Linear}, {"CUBIC", Cubic}});
    return names;
}

SoField* SoTrack::findTarget() const
{
    const SoNode* node = target.getNode();
    return node ? node->getField(field.getValue()) : nullptr;
}

int SoTrack::getWidth() const
{
    const int perKey = betweenOf(*this) == xsg::KeyList::Between::Cubic ? 3 : 1;
    const int keys = times.getNum() * perKey;
    return keys > 0 && values.getNum() % keys == 0 ? values.getNum() / keys : 0;
}

bool SoTrack::canWrite(const SoField& to) const
{
    const int width = getWidth();
    const Kind* kind = findKind(to);
    const bool isList = to.getTypeId() == SoMFFloat::getClassTypeId();
    return width > 0 && (kind ? kind->width == width : isList);
}

void SoTrack::write(SoField& to, float time) const
{
    const Kind* kind = findKind(to);
    xsg::KeyList keys;
    keys.times = times.getValues();
    keys.count = static_cast<std::size_t>(times.getNum());
    keys.values = values.getValues();
    keys.width = static_cast<std::size_t>(getWidth());
    keys.between = betweenOf(*this);
    keys.isRotation = to.getTypeId() == SoSFRotation::getClassTypeId();
    if (kind) {
        float numbers[MostNumbers] = {};
        xsg::sampleKeys(keys, time, numbers);
        kind->write(to, numbers);
    } else {
        std::vector<float> numbers(keys.width);
        xsg::sampleKeys(keys, time, numbers.data());
        assignList(static_cast<SoMFFloat&>(to), numbers.data(), static_cast<int>(keys.width));
    }
}
