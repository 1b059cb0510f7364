// SPDX-License-Identifier: MIT
#pragma once

#include "rows/TextRow.h"

namespace inspector
{

/// The path of a file: typed, chosen in a dialog, or dropped onto the row.
class FileRow : public TextRow
{
    Q_OBJECT

public:
    explicit FileRow(SoField* field);

protected:
    void build() override;
    void showValue() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void browse();
    void take(const QString& path);
};

} // namespace inspector
