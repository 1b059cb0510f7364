// SPDX-License-Identifier: MIT
#include "fields/NumberAccess.h"

#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFDouble.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFShort.h>
#include <xsg/fields/SoMFUInt32.h>
#include <xsg/fields/SoMFUShort.h>
#include <xsg/fields/SoMFVec2d.h>
#include <xsg/fields/SoMFVec2f.h>
#include <xsg/fields/SoMFVec2i32.h>
#include <xsg/fields/SoMFVec2s.h>
#include <xsg/fields/SoMFVec3d.h>
#include <xsg/fields/SoMFVec3f.h>
#include <xsg/fields/SoMFVec3s.h>
#include <xsg/fields/SoMFVec4d.h>
#include <xsg/fields/SoMFVec4f.h>
#include <xsg/fields/SoSFBox3f.h>
#include <xsg/fields/SoSFBox3s.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFPlane.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFShort.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/fields/SoSFUInt32.h>
#include <xsg/fields/SoSFUShort.h>
#include <xsg/fields/SoSFVec2d.h>
#include <xsg/fields/SoSFVec2f.h>
#include <xsg/fields/SoSFVec2i32.h>
#include <xsg/fields/SoSFVec2s.h>
#include <xsg/fields/SoSFVec3d.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/fields/SoSFVec3s.h>
#include <xsg/fields/SoSFVec4d.h>
#include <xsg/fields/SoSFVec4f.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace inspector
{

namespace
{

template <class Number>
constexpr double lowestOf()
{
    return double(std::numeric_limits<Number>::lowest());
}

template <class Number>
Number nearest(double number)
{
    if constexpr (std::is_integral_v<Number>) {
        const double limited =
            std::clamp(std::round(number), lowestOf<Number>(), double(std::numeric_limits<Number>::max()));
        return std::isnan(number) ? Number{} : Number(limited);
    } else {
        const bool isBeyond =
            std::isfinite(number) && std::fabs(number) > double(std::numeric_limits<Number>::max());
        return isBeyond ? std::copysign(std::numeric_limits<Number>::max(), Number(number < 0 ? -1 : 1))
                        : Number(number);
    }
}

// What a value's numbers are: one for a number itself, the components of a vector, ...
template <class Value>
struct Parts {
    using Number = Value;
    static constexpr int Count = 1;
    static Number get(const Value& value, int /*which*/) { return value; }
    static void set(Value& value, int /*which*/, Number number) { value = number; }
};

template <class T, int N>
struct Parts<SbVec<T, N>> {
    using Number = T;
    static constexpr int Count = N;
    static T get(const SbVec<T, N>& value, int which) { return value[which]; }
    static void set(SbVec<T, N>& value, int which, T number) { value[which] = number; }
};

template <>
struct Parts<SbColor> : Parts<SbVec3f> {
};

template <>
struct Parts<SbTime> {
    using Number = double;
    static constexpr int Count = 1;
    static double get(const SbTime& value, int /*which*/) { return value.getValue(); }
    static void set(SbTime& value, int /*which*/, double number) { value = SbTime(number); }
};

template <class Value, int N>
struct Stored {
    using Number = float;
    static constexpr int Count = N;
    static float get(const Value& value, int which) { return value.getValue()[which]; }
    static void set(Value& value, int which, float number)
    {
        float numbers[N];
        std::copy(value.getValue(), value.getValue() + N, numbers);
        numbers[which] = number;
        value.setValue(numbers);
    }
};

template <>
struct Parts<SbRotation> : Stored<SbRotation, 4> {
};

template <>
struct Parts<SbMatrix> : Stored<SbMatrix, 16> {
};

template <>
struct Parts<SbPlane> {
    using Number = float;
    static constexpr int Count = 4;
    static float get(const SbPlane& value, int which)
    {
        return which < 3 ? value.getNormal()[which] : value.getDistanceFromOrigin();
    }
    static void set(SbPlane& value, int which, float number)
    {
        SbVec3f normal = value.getNormal();
        if (which < 3)
            normal[which] = number;
        value = SbPlane(normal, which < 3 ? value.getDistanceFromOrigin() : number);
    }
};

template <class Box, class Corner>
struct Corners {
    using Number = typename Box::Scalar;
    static constexpr int Count = 6;
    static Number get(const Box& value, int which)
    {
        return which < 3 ? value.getMin()[which] : value.getMax()[which - 3];
    }
    static void set(Box& value, int which, Number number)
    {
        Corner corners[] = {value.getMin(), value.getMax()};
        corners[which / 3][which % 3] = number;
        value = Box(corners[0], corners[1]);
    }
};

template <>
struct Parts<SbBox3f> : Corners<SbBox3f, SbVec3f> {
};

template <>
struct Parts<SbBox3s> : Corners<SbBox3s, SbVec3s> {
};

template <class Field>
typename Field::Value valueOf(const Field& field)
{
    if constexpr (std::is_base_of_v<SoMField, Field>)
        return field.getNum() > 0 ? field[0] : typename Field::Value{};
    else
        return field.getValue();
}

template <class Field>
void write(Field& field, const typename Field::Value& value)
{
    if constexpr (std::is_base_of_v<SoMField, Field>)
        field.set1Value(0, value);
    else
        field.setValue(value);
}

template <class Field>
double getOf(const SoField& field, int which)
{
    return double(Parts<typename Field::Value>::get(valueOf(static_cast<const Field&>(field)), which));
}

template <class Field>
void setOf(SoField& field, int which, double number)
{
    using Value = typename Field::Value;
    Value value = valueOf(static_cast<const Field&>(field));
    Parts<Value>::set(value, which, nearest<typename Parts<Value>::Number>(number));
    write(static_cast<Field&>(field), value);
}

template <class Field>
std::pair<SoType, NumberAccess> entry()
{
    using P = Parts<typename Field::Value>;
    using Number = typename P::Number;
    return {Field::getClassTypeId(),
            {P::Count, std::is_integral_v<Number>, std::is_same_v<Number, float>, lowestOf<Number>(),
             double(std::numeric_limits<Number>::max()), getOf<Field>, setOf<Field>}};
}

template <class... Fields>
std::vector<std::pair<SoType, NumberAccess>> entries()
{
    return {entry<Fields>()...};
}

} // namespace

const NumberAccess* NumberAccess::of(const SoField& field)
{
    static const auto table =
        entries<SoSFFloat, SoSFDouble, SoSFInt32, SoSFUInt32, SoSFShort, SoSFUShort, SoSFTime, SoSFVec2f,
                SoSFVec2d, SoSFVec2s, SoSFVec2i32, SoSFVec3f, SoSFVec3d, SoSFVec3s, SoSFVec4f, SoSFVec4d,
                SoSFColor, SoSFRotation, SoSFMatrix, SoSFPlane, SoSFBox3f, SoSFBox3s, SoMFFloat, SoMFDouble,
                SoMFInt32, SoMFUInt32, SoMFShort, SoMFUShort, SoMFVec2f, SoMFVec2d, SoMFVec2s, SoMFVec2i32,
                SoMFColor, SoMFVec3f, SoMFVec3d, SoMFVec3s, SoMFVec4f, SoMFVec4d>();
    for (const auto& [type, access] : table) {
        if (field.getTypeId().isDerivedFrom(type))
            return &access;
    }
    return nullptr;
}

} // namespace inspector
