// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFVec3fWidget.h"

/// Edits lists of colours: a swatch that opens the colour dialog, and the components red, green and blue.
class EdMFColorWidget : public EdMFVec3fWidget
{
    Q_OBJECT

public:
    explicit EdMFColorWidget(const char* name = nullptr);

    void load() override;
    bool checkField(SoField* field) override;
    /// A value outside 0 to 1 is ignored.
    void setSingleFieldValue(float value, int row, int column) override;
    /// `rgb`: three floats, 0 to 1. Recorded, but not undoable (decisions.md: color-list-no-undo).
    void setValue(int row, const void* rgb) override;

protected:
    void initClass() override;
};
