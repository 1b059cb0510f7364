// Edits an unsigned integer of 32 bits.
#pragma once

#include "EdSFIntegerWidget.h"

class EdSFUInt32Widget : public EdSFIntegerWidget<EdUIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFUInt32Widget(const char* name = nullptr);
};
