// SPDX-License-Identifier: MIT
#include "rows/RowFactory.h"

#include "rows/BoolRow.h"
#include "rows/ColorRow.h"
#include "rows/EnumRow.h"
#include "rows/FileRow.h"
#include "rows/LinkRow.h"
#include "rows/MaskRow.h"
#include "rows/MatrixRow.h"
#include "rows/NumbersRow.h"
#include "rows/RotationRow.h"
#include "rows/TextRow.h"

namespace inspector
{

namespace
{

Row* newRow(SoField* field, FieldKind kind)
{
    switch (kind) {
    case FieldKind::Numbers:
        return new NumbersRow(field);
    case FieldKind::Color:
        return new ColorRow(field);
    case FieldKind::Rotation:
        return new RotationRow(field);
    case FieldKind::Matrix:
        return new MatrixRow(field);
    case FieldKind::Bool:
        return new BoolRow(field);
    case FieldKind::Enum:
        return new EnumRow(field);
    case FieldKind::Mask:
        return new MaskRow(field);
    case FieldKind::File:
        return new FileRow(field);
    case FieldKind::Node:
    case FieldKind::Image:
    case FieldKind::List:
        return new LinkRow(field);
    case FieldKind::Text:
        break;
    }
    return new TextRow(field);
}

} // namespace

Row* makeRow(SoField* field, std::vector<SpxFieldPointer> others, FieldKind kind, QWidget* parent)
{
    Row* row = newRow(field, kind);
    row->m_others = std::move(others);
    row->setParent(parent);
    row->start();
    return row;
}

} // namespace inspector
