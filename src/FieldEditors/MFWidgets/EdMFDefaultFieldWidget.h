// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFLineWidget.h"

/// The editor of last resort for multi-value fields: every element as the field's own text.
class EdMFDefaultFieldWidget : public EdMFLineWidget
{
    Q_OBJECT

public:
    explicit EdMFDefaultFieldWidget(const char* name = nullptr);

    void load() override;
    int getTextFlags() override { return Qt::AlignLeft; }
    /// Undoable, unlike the lists of numbers.
    void setSingleFieldValue(const SbString& value, int row, int column) override;
};
