// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QAction;
class QComboBox;
class QLabel;
class QSlider;
class QToolButton;

namespace scopix
{

class Playback;

/// A bar at the bottom of the 3D view that plays the scene's clips. There only while there are any. GUI
/// thread only.
class PlaybackBar : public QFrame
{
    Q_OBJECT

public:
    /// Lies over `view`, which owns it; the playback must outlive it.
    PlaybackBar(Playback& playback, QWidget& view);

    /// A button for an act, in the order of the calls, before the slider.
    void addAct(QAction& action);
    /// The same, after it.
    void addLastAct(QAction& action);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QToolButton* makeButton(QAction& action);
    void listClips();
    void showState();
    void chooseSpeed(int place);
    void place();

    Playback& m_playback;
    QWidget& m_view;
    QComboBox* m_clips;
    QSlider* m_slider;
    QLabel* m_time;
    QComboBox* m_speed;
};

} // namespace scopix
