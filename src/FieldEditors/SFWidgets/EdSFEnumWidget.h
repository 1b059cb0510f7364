// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFieldWidget.h"

class QComboBox;

/// Edits one of a set of named values with a combo box.
class EdSFEnumWidget : public EdSFieldWidget
{
    Q_OBJECT

public:
    explicit EdSFEnumWidget(const char* name = nullptr);

    void load() override;
    void setField(SoField* field) override;
    /// A value without a name shows no selection.
    void refresh() override;

protected:
    void applyChanges() override;

private:
    QComboBox* m_comboBox = nullptr;
};
