// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFComponentsWidget.h"

#include <xsg/fields/SoMFVec2i32.h>

struct MFVec2i32Traits {
    using Field = SoMFVec2i32;
    using Component = int;
    static constexpr const char* Name = "MFVec2i32";
    static constexpr auto Cell = EdMFieldTable::CELL_INT32;
    static QStringList captions() { return {"x", "y"}; }
    static Component get(const Field::Value& element, int column) { return element[column]; }
    static Field::Value with(Field::Value element, int column, Component value)
    {
        element[column] = value;
        return element;
    }
};

/// Edits lists of two 32-bit integers, one per row.
class EdMFVec2i32Widget : public EdMFComponentsWidget<MFVec2i32Traits>
{
    Q_OBJECT

public:
    explicit EdMFVec2i32Widget(const char* name = nullptr);
};
