// Four floats in line edits.
#pragma once

#include "EdSFFloatsWidget.h"

class EdSF4fBox : public EdSFFloatsWidget
{
    Q_OBJECT

protected:
    EdSF4fBox(const char* name, const QStringList& captions);
};
