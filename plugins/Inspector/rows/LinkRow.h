// SPDX-License-Identifier: MIT
#pragma once

#include "rows/Row.h"

class QPushButton;

namespace inspector
{

/// A value that is shown in a line on a button, and opened by it: a node is selected, a list or a picture is
/// shown in the Field Editor.
class LinkRow : public Row
{
    Q_OBJECT

public:
    explicit LinkRow(SoField* field);

protected:
    void build() override;
    void showValue() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void open();

    QPushButton* m_button = nullptr;
    QString m_text;
};

} // namespace inspector
