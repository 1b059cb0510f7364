// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFIntegerWidget.h"

/// Edits an unsigned integer of 16 bits.
class EdSFUShortWidget : public EdSFIntegerWidget<EdUIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFUShortWidget(const char* name = nullptr);
};
