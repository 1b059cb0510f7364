// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFieldTable.h"

/// The table of a colour list: a click on a swatch opens the colour dialog.
class EdMFColorTable : public EdMFieldTable
{
    Q_OBJECT

public:
    EdMFColorTable(EdMFieldWidget* owner, QWidget* parent, const char* name);

public slots:
    void getColorFromEditor(int row, int col);
};
