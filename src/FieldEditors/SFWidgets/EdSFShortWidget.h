// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFIntegerWidget.h"

/// Edits a signed integer of 16 bits.
class EdSFShortWidget : public EdSFIntegerWidget<EdIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFShortWidget(const char* name = nullptr);
};
