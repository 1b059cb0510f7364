// SPDX-License-Identifier: MIT
#pragma once

#include <QSpinBox>

/// The quick-access box of a multi-value editor: the row to go to, counted from 1.
class AccessButtonPrivate : public QSpinBox
{
    Q_OBJECT

public:
    AccessButtonPrivate(QWidget* parent, const char* name);
    AccessButtonPrivate(int minimum, int maximum, int step, QWidget* parent, const char* name);

    /// Moves the range without a signal: only what the user does in the box reaches the table.
    void setSilentRange(int minimum, int maximum);

public slots:
    /// Shows a row of the table, which counts from 0; silent too.
    void setNewValue(int row);

protected:
    /// Enter shows the chosen row again even when the number did not change.
    void keyPressEvent(QKeyEvent* event) override;
};
