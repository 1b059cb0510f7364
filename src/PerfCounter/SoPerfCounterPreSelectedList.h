// The counters of the profile, to be dragged into the viewer.
#pragma once

#include <QListWidget>

class SoPerfCounterPreSelectedList : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    // What a drag carries: the selected names in the order of selection, each followed by "##".
    QString dragText() const;

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
};
