// Edits a signed integer of 16 bits.
#pragma once

#include "EdSFIntegerWidget.h"

class EdSFShortWidget : public EdSFIntegerWidget<EdIntSlider>
{
    Q_OBJECT

public:
    explicit EdSFShortWidget(const char* name = nullptr);
};
