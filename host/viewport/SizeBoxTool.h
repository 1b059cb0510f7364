// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewTool.h"

#include <QObject>

namespace scopix
{

class SceneView;
class SelectionMeasure;

/// A box around what is selected, along the axes of the world, with its sizes. GUI thread only.
class SizeBoxTool : public QObject, public ViewTool
{
    Q_OBJECT

public:
    /// Both must outlive it.
    SizeBoxTool(SceneView& view, SelectionMeasure& selection);

    void setOn(bool on);
    bool isOn() const { return m_isOn; }

    void paint(QPainter& painter, const ViewSight& sight) override;

private:
    SceneView& m_view;
    SelectionMeasure& m_selection;
    bool m_isOn = false;
};

} // namespace scopix
