// SPDX-License-Identifier: MIT
#pragma once

#include "rows/Row.h"

class QCheckBox;

namespace inspector
{

/// On or off.
class BoolRow : public Row
{
    Q_OBJECT

public:
    explicit BoolRow(SoField* field);

protected:
    void build() override;
    void showValue() override;

private:
    QCheckBox* m_box = nullptr;
};

} // namespace inspector
