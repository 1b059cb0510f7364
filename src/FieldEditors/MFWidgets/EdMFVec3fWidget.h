// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFComponentsWidget.h"

#include <xsg/fields/SoMFVec3f.h>

struct MFVec3fTraits {
    using Field = SoMFVec3f;
    using Component = float;
    static constexpr const char* Name = "MFVec3f";
    static constexpr auto Cell = EdMFieldTable::CELL_FLOAT;
    static QStringList captions() { return {"x", "y", "z"}; }
    static Component get(const Field::Value& element, int column) { return element[column]; }
    static Field::Value with(Field::Value element, int column, Component value)
    {
        element[column] = value;
        return element;
    }
};

/// Edits lists of three floats, one per row.
class EdMFVec3fWidget : public EdMFComponentsWidget<MFVec3fTraits>
{
    Q_OBJECT

public:
    explicit EdMFVec3fWidget(const char* name = nullptr, int tableKind = 0);
};
