// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFieldWidget.h"

class EdSFImageLabel;

/// Shows a picture; it edits nothing.
class EdSFImageWidget : public EdSFieldWidget
{
    Q_OBJECT

public:
    explicit EdSFImageWidget(const char* name = nullptr);

    void load() override;
    void refresh() override;

    /// Leaves the pixmap as it is where the field holds no picture that can be shown.
    static void getPixmapFromField(SoField* field, QPixmap& pixmap);
    /// A copy that XsgFree() gives back; null for a size below 1.
    static unsigned char* copyBuffer(const unsigned char* data, int size);

protected:
    void applyChanges() override;

private:
    EdSFImageLabel* m_imageBox = nullptr;
};
