// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFieldWidget.h"

class QCheckBox;

/// Edits a truth value with a check box.
class EdSFBoolWidget : public EdSFieldWidget
{
    Q_OBJECT

public:
    explicit EdSFBoolWidget(const char* name = nullptr);

    void load() override;
    void refresh() override;

protected:
    void applyChanges() override;

private:
    QCheckBox* m_box = nullptr;
};
