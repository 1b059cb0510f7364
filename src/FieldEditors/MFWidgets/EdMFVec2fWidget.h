// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFComponentsWidget.h"

#include <xsg/fields/SoMFVec2f.h>

struct MFVec2fTraits {
    using Field = SoMFVec2f;
    using Component = float;
    static constexpr const char* Name = "MFVec2f";
    static constexpr auto Cell = EdMFieldTable::CELL_FLOAT;
    static QStringList captions() { return {"x", "y"}; }
    static Component get(const Field::Value& element, int column) { return element[column]; }
    static Field::Value with(Field::Value element, int column, Component value)
    {
        element[column] = value;
        return element;
    }
};

/// Edits lists of two floats, one per row.
class EdMFVec2fWidget : public EdMFComponentsWidget<MFVec2fTraits>
{
    Q_OBJECT

public:
    explicit EdMFVec2fWidget(const char* name = nullptr);
};
