// SPDX-License-Identifier: MIT
#pragma once

#include "EdSF4fBox.h"

/// Edits a plane: its normal and its distance from the origin.
class EdSFPlaneWidget : public EdSF4fBox
{
    Q_OBJECT

public:
    explicit EdSFPlaneWidget(const char* name = nullptr);

protected:
    Floats read() const override;
    void write(const Floats& numbers) override;
};
