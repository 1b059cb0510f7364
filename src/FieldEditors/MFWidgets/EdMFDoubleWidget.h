// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFRealWidget.h"

#include <xsg/fields/SoMFDouble.h>

struct MFDoubleTraits {
    using Field = SoMFDouble;
    static constexpr const char* Name = "MFDouble";
    static constexpr auto Cell = EdMFieldTable::CELL_DOUBLE;
    static constexpr const char* DefaultRange = "doubleField";
    static double minimum(const EdRangeComponent& range) { return double(range.getdMin()); }
    static double maximum(const EdRangeComponent& range) { return double(range.getdMax()); }
};

/// Edits lists of double-precision numbers.
class EdMFDoubleWidget : public EdMFRealWidget<MFDoubleTraits>
{
    Q_OBJECT

public:
    explicit EdMFDoubleWidget(const char* name = nullptr);
};
