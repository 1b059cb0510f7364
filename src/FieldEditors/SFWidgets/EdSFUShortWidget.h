// Edits an unsigned integer of 16 bits.
#pragma once

#include "EdSFIntegerWidget.h"

class EdSFUShortWidget : public EdSFIntegerWidget<EdUIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFUShortWidget(const char* name = nullptr);
};
