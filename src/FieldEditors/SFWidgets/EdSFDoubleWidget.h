// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFRealWidget.h"

#include <xsg/fields/SoSFDouble.h>

/// Edits a number of double precision.
class EdSFDoubleWidget : public EdSFRealWidget<SoSFDouble>
{
    Q_OBJECT

public:
    explicit EdSFDoubleWidget(const char* name = nullptr);
};
