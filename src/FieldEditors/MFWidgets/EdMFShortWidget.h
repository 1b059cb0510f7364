// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFIntegerWidget.h"

#include <xsg/fields/SoMFShort.h>

struct MFShortTraits {
    using Field = SoMFShort;
    static constexpr const char* Name = "MFShort";
    static constexpr auto Cell = EdMFieldTable::CELL_SHORT;
};

/// Edits lists of 16-bit integers.
class EdMFShortWidget : public EdMFIntegerWidget<MFShortTraits>
{
    Q_OBJECT

public:
    explicit EdMFShortWidget(const char* name = nullptr);
};
