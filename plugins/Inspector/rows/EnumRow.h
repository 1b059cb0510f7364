// SPDX-License-Identifier: MIT
#pragma once

#include "rows/Row.h"

class QComboBox;

namespace inspector
{

/// One of several names; a value without a name is shown as its number.
class EnumRow : public Row
{
    Q_OBJECT

public:
    explicit EnumRow(SoField* field);

protected:
    void build() override;
    void showValue() override;
    bool isBusy() const override;

private:
    QComboBox* m_box = nullptr;
};

} // namespace inspector
