// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFTextWidget.h"

#include <xsg/fields/SoSFFilePathString.h>

/// Edits the path of a file; a button opens the file dialog.
class EdSFFilePathStringWidget : public EdSFTextWidget<SoSFFilePathString>
{
    Q_OBJECT

public:
    explicit EdSFFilePathStringWidget(const char* name = nullptr);

    void load() override;

protected slots:
    bool edited() override;
    /// Starts in the folder of the present value.
    void openFileDialog();
};
