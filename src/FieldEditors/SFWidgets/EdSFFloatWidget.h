// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFRealWidget.h"

#include <xsg/fields/SoSFFloat.h>

/// Edits a number of single precision.
class EdSFFloatWidget : public EdSFRealWidget<SoSFFloat>
{
    Q_OBJECT

public:
    explicit EdSFFloatWidget(const char* name = nullptr);
};
