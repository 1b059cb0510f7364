// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/Playback.h"

#include <QList>

class QAction;
class QKeySequence;
class QMenu;

namespace scopix
{

class PlaybackBar;

/// The acts that play a scene's clips, in a menu, by keys and in a bar over the view. Their single keys act
/// while one of the widgets has the focus. GUI thread only.
class PlaybackActs : public QObject
{
    Q_OBJECT

public:
    /// The widgets and the menu must outlive it, or be destroyed with the same window.
    PlaybackActs(QMenu& menu, QWidget& view, const QList<QWidget*>& widgets, QObject* parent);
    ~PlaybackActs() override;

    Playback& getPlayback() { return m_playback; }

private:
    QAction* add(QMenu& menu, const QString& text, const char* name, const char* icon,
                 const QKeySequence& key);
    void showState();
    void changeSpeed(float factor);

    Playback m_playback;
    QList<QWidget*> m_widgets;
    QMenu* m_menu;
    QAction* m_play = nullptr;
    QAction* m_stop = nullptr;
    QAction* m_loop = nullptr;
    QAction* m_next = nullptr;
    QWidget* m_surface;
    bool m_showsPause = false;
};

} // namespace scopix
