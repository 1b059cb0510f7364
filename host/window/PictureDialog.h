// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/PictureSeries.h"

#include <QDialog>

class QCheckBox;
class QSpinBox;

namespace scopix
{

/// Asks how large a picture of the view is to be, whether its ground is transparent, and of how many
/// pictures a turn consists. What was chosen last is offered again.
class PictureDialog : public QDialog
{
    Q_OBJECT

public:
    /// `viewSize`, in pixels of the screen, is offered at first.
    PictureDialog(const QSize& viewSize, bool isTurntable, QWidget* parent);

    /// Without a path.
    PictureOrder getOrder() const;
    void accept() override;

private:
    QSpinBox* addNumber(const char* name, int most, int value);

    bool m_isTurntable;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QSpinBox* m_count;
    QCheckBox* m_transparent;
};

} // namespace scopix
