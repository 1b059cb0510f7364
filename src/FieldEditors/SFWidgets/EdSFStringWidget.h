// Edits a text.
#pragma once

#include "EdSFTextWidget.h"

#include <xsg/fields/SoSFString.h>

class EdSFStringWidget : public EdSFTextWidget<SoSFString>
{
    Q_OBJECT

public:
    explicit EdSFStringWidget(const char* name = nullptr);
};
