// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFieldWidget.h"

class SbString;

/// Base of the lists that show one value per row in one column, as the field's own text.
class EdMFLineWidget : public EdMFieldWidget
{
    Q_OBJECT

public:
    explicit EdMFLineWidget(const char* name = nullptr);

    void load() override;
    bool checkField(SoField* field) override;
    QString getFieldValue(int row, int column) const override;
    /// Writes straight into the field and leaves nothing to undo, unlike the lists of several columns
    /// (decisions.md: single-column-no-undo).
    void set1Value(int row, int column, QString text) override;
    void swapRows(int row1, int row2) override;

    SbString getSingleFieldValue(int row, int column) const;
    virtual void setSingleFieldValue(const SbString& value, int row, int column);
};
