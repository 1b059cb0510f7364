// SPDX-License-Identifier: MIT
#pragma once

#include "EdSF4fBox.h"

class QFocusEvent;

/// Edits a rotation: its axis and its angle in radians.
class EdSFRotationWidget : public EdSF4fBox
{
    Q_OBJECT

public:
    explicit EdSFRotationWidget(const char* name = nullptr);

    /// Applies what was typed when the editor is left.
    virtual void focusOutEvent(QFocusEvent* event);

protected:
    Floats read() const override;
    void write(const Floats& numbers) override;
};
