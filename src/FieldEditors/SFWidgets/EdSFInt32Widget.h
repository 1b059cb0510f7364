// Edits a signed integer of 32 bits.
#pragma once

#include "EdSFIntegerWidget.h"

class EdSFInt32Widget : public EdSFIntegerWidget<EdIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFInt32Widget(const char* name = nullptr);
};
