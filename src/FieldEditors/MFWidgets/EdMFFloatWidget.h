// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFRealWidget.h"

#include <xsg/fields/SoMFFloat.h>

struct MFFloatTraits {
    using Field = SoMFFloat;
    static constexpr const char* Name = "MFFloat";
    static constexpr auto Cell = EdMFieldTable::CELL_FLOAT;
    static constexpr const char* DefaultRange = "floatField";
    static double minimum(const EdRangeComponent& range) { return double(range.getfMin()); }
    static double maximum(const EdRangeComponent& range) { return double(range.getfMax()); }
};

/// Edits lists of single-precision numbers.
class EdMFFloatWidget : public EdMFRealWidget<MFFloatTraits>
{
    Q_OBJECT

public:
    explicit EdMFFloatWidget(const char* name = nullptr);
};
