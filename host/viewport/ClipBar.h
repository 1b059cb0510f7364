// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>

#include <QFrame>

class QLabel;
class QSlider;
class QToolButton;

namespace scopix
{

class SceneView;

/// A bar at the bottom of the 3D view that cuts the scene by a plane, across an axis or across the line of
/// sight, at a place that a slider chooses. The scene itself stays as it is, and whole again when the bar is
/// closed. GUI thread only.
class ClipBar : public QFrame
{
    Q_OBJECT

public:
    /// The view owns it. Hidden at first.
    explicit ClipBar(SceneView& view);

    /// Cuts in the middle of the scene at first, later where it cut before.
    void setOpen(bool open);

signals:
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* addButton(const QString& text, const QString& tip, const char* name);
    void chooseAxis(int axis);
    void cut();
    void place();

    SceneView& m_view;
    QToolButton* m_axes[4]; // of the world, and the line of sight
    QSlider* m_slider;
    QToolButton* m_flip;
    QLabel* m_place;
    SbVec3f m_normal{1, 0, 0};
};

} // namespace scopix
