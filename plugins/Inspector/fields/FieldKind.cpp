// SPDX-License-Identifier: MIT
#include "fields/FieldKind.h"

#include "fields/NumberAccess.h"

#include <xsg/core/SoMField.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/nodes/base/SoSFNode.h>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int MostMaskLines = 12;

template <class Field>
bool is(const SoField& field)
{
    return field.getTypeId().isDerivedFrom(Field::getClassTypeId());
}

int maskLines(const SoField& field)
{
    const auto names = int(static_cast<const SoSFBitMask&>(field).getTable().names.size());
    return std::clamp(names, 1, MostMaskLines);
}

} // namespace

FieldKind kindOf(const SoField& field)
{
    if (is<SoMField>(field)) {
        const bool isOne = static_cast<const SoMField&>(field).getNum() == 1 && NumberAccess::of(field);
        return !isOne ? FieldKind::List : is<SoMFColor>(field) ? FieldKind::Color : FieldKind::Numbers;
    }
    if (is<SoSFBool>(field))
        return FieldKind::Bool;
    if (is<SoSFBitMask>(field))
        return FieldKind::Mask;
    if (is<SoSFEnum>(field))
        return FieldKind::Enum;
    if (is<SoSFColor>(field))
        return FieldKind::Color;
    if (is<SoSFRotation>(field))
        return FieldKind::Rotation;
    if (is<SoSFMatrix>(field))
        return FieldKind::Matrix;
    if (is<SoSFFilePathString>(field))
        return FieldKind::File;
    if (is<SoSFNode>(field))
        return FieldKind::Node;
    if (is<SoSFImage>(field))
        return FieldKind::Image;
    return NumberAccess::of(field) ? FieldKind::Numbers : FieldKind::Text;
}

int linesOf(const SoField& field)
{
    switch (kindOf(field)) {
    case FieldKind::Matrix:
        return 5;
    case FieldKind::Rotation:
        return 2;
    case FieldKind::Mask:
        return maskLines(field);
    case FieldKind::Numbers:
        return NumberAccess::of(field)->count > 4 ? 2 : 1;
    default:
        return 1;
    }
}

bool isWide(const SoField& field)
{
    const FieldKind kind = kindOf(field);
    if (kind == FieldKind::Numbers)
        return NumberAccess::of(field)->count > 2;
    return kind != FieldKind::Bool && kind != FieldKind::Enum && kind != FieldKind::Mask &&
           kind != FieldKind::Node;
}

} // namespace inspector
