// SPDX-License-Identifier: MIT
#pragma once

#include "rows/Row.h"

class QCheckBox;
class QLabel;

namespace inspector
{

/// Named bits as check boxes; bits without a name are shown, and stay as they are.
class MaskRow : public Row
{
    Q_OBJECT

public:
    explicit MaskRow(SoField* field);

protected:
    void build() override;
    void showValue() override;

private:
    void setBits(int bits, bool on);
    Qt::CheckState stateOf(int bits) const;

    QList<QCheckBox*> m_boxes;
    QLabel* m_others = nullptr;
};

} // namespace inspector
