// SPDX-License-Identifier: MIT
#pragma once

#include "EdPopupWidget.h"

/// Edits a matrix, shown transposed: the translation, its last row, stands in the last column.
class EdSFMatrixWidget : public EdPopupWidget
{
    Q_OBJECT

public:
    explicit EdSFMatrixWidget(const char* name = nullptr);

    void load() override;

protected:
    QStringList cellTexts() const override;
    void writeCells(const EdLineEditGroup& cells) override;
};
