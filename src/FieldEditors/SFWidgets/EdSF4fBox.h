// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFFloatsWidget.h"

/// Four floats in line edits.
class EdSF4fBox : public EdSFFloatsWidget
{
    Q_OBJECT

protected:
    EdSF4fBox(const char* name, const QStringList& captions);
};
