// SPDX-License-Identifier: MIT
#pragma once

#include "EdPopupWidget.h"

/// Edits a box of integers: its lowest corner in the first row, its highest in the second.
class EdSFBox3sWidget : public EdPopupWidget
{
    Q_OBJECT

public:
    explicit EdSFBox3sWidget(const char* name = nullptr);

    void load() override;

protected:
    QStringList cellTexts() const override;
    void writeCells(const EdLineEditGroup& cells) override;
};
