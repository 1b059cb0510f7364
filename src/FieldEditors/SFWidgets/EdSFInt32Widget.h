// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFIntegerWidget.h"

/// Edits a signed integer of 32 bits.
class EdSFInt32Widget : public EdSFIntegerWidget<EdIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFInt32Widget(const char* name = nullptr);
};
