// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFIntegerWidget.h"

/// Edits an unsigned integer of 32 bits.
class EdSFUInt32Widget : public EdSFIntegerWidget<EdUIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFUInt32Widget(const char* name = nullptr);
};
