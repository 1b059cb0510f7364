// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

/// The counters of the profile, to be dragged into the viewer.
class SoPerfCounterPreSelectedList : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    /// What a drag carries: the selected names in the order of selection, each followed by "##".
    QString dragText() const;

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
};
