// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFComponentsWidget.h"

#include <xsg/fields/SoMFVec4f.h>

struct MFVec4fTraits {
    using Field = SoMFVec4f;
    using Component = float;
    static constexpr const char* Name = "MFVec4f";
    static constexpr auto Cell = EdMFieldTable::CELL_FLOAT;
    static QStringList captions() { return {"x", "y", "z", "w"}; }
    static Component get(const Field::Value& element, int column) { return element[column]; }
    static Field::Value with(Field::Value element, int column, Component value)
    {
        element[column] = value;
        return element;
    }
};

/// Edits lists of four floats, one per row.
class EdMFVec4fWidget : public EdMFComponentsWidget<MFVec4fTraits>
{
    Q_OBJECT

public:
    explicit EdMFVec4fWidget(const char* name = nullptr);
};
