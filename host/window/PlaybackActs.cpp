// SPDX-License-Identifier: MIT
#include "window/PlaybackActs.h"

#include "theme/SvgIcon.h"
#include "viewport/PlaybackBar.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <cmath>
#include <utility>

namespace scopix
{

namespace
{

constexpr float Slowest = 1.0F / 16;
constexpr float Fastest = 16;

} // namespace

PlaybackActs::PlaybackActs(QMenu& menu, QWidget& view, const QList<QWidget*>& widgets, QObject* parent)
    : QObject(parent)
    , m_widgets(widgets)
    , m_menu(menu.addMenu(tr("&Animation")))
    , m_surface(&view)
{
    m_menu->setObjectName(QStringLiteral("animationMenu"));
    m_play = add(*m_menu, tr("&Play"), "animationPlay", "action-play", Qt::Key_Space);
    connect(m_play, &QAction::triggered, &m_playback, &Playback::togglePlaying);
    m_stop = add(*m_menu, tr("&Stop, as It Was"), "animationStop", "action-stop", Qt::SHIFT + Qt::Key_Space);
    connect(m_stop, &QAction::triggered, &m_playback, &Playback::stop);
    QAction* back = add(*m_menu, tr("One Key &Back"), "animationBack", "action-step-back", Qt::Key_Comma);
    connect(back, &QAction::triggered, &m_playback, &Playback::stepBack);
    QAction* ahead =
        add(*m_menu, tr("One Key &Ahead"), "animationAhead", "action-step-ahead", Qt::Key_Period);
    connect(ahead, &QAction::triggered, &m_playback, &Playback::stepAhead);
    m_menu->addSeparator();
    connect(add(*m_menu, tr("Half as &Fast"), "animationSlower", "", Qt::Key_BracketLeft),
            &QAction::triggered, this, [this] { changeSpeed(0.5F); });
    connect(add(*m_menu, tr("&Twice as Fast"), "animationFaster", "", Qt::Key_BracketRight),
            &QAction::triggered, this, [this] { changeSpeed(2); });
    connect(add(*m_menu, tr("Back&wards"), "animationReverse", "", Qt::SHIFT + Qt::Key_Comma),
            &QAction::triggered, this, [this] { changeSpeed(-1); });
    m_loop = add(*m_menu, tr("Again and A&gain"), "animationLoop", "action-loop", Qt::Key_L);
    m_loop->setCheckable(true);
    connect(m_loop, &QAction::triggered, &m_playback, &Playback::setLooping);
    m_menu->addSeparator();
    m_next = add(*m_menu, tr("&Next Clip"), "animationNext", "", Qt::SHIFT + Qt::Key_N);
    connect(m_next, &QAction::triggered, &m_playback, &Playback::chooseNext);
    auto* bar = new PlaybackBar(m_playback, view);
    for (QAction* action : {m_stop, back, m_play, ahead})
        bar->addAct(*action);
    bar->addLastAct(*m_loop);
    connect(&m_playback, &Playback::clipsChanged, this, &PlaybackActs::showState);
    connect(&m_playback, &Playback::changed, this, &PlaybackActs::showState);
    showState();
}

PlaybackActs::~PlaybackActs()
{
    m_playback.disconnect();
}

QAction* PlaybackActs::add(QMenu& menu, const QString& text, const char* name, const char* icon,
                           const QKeySequence& key)
{
    QAction* action = menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    if (*icon != '\0')
        action->setIcon(svgIcon(QLatin1String(icon), m_surface));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    for (QWidget* widget : m_widgets)
        widget->addAction(action);
    return action;
}

void PlaybackActs::showState()
{
    const bool hasClips = m_playback.hasClips();
    for (QAction* action : m_menu->actions())
        action->setEnabled(hasClips);
    m_stop->setEnabled(hasClips && m_playback.isShown());
    m_next->setEnabled(m_playback.getChoices().size() > 1);
    m_loop->setChecked(m_playback.isLooping());
    const bool isPlaying = m_playback.isPlaying();
    if (std::exchange(m_showsPause, isPlaying) == isPlaying)
        return;
    m_play->setText(isPlaying ? tr("&Pause") : tr("&Play"));
    m_play->setIcon(
        svgIcon(isPlaying ? QStringLiteral("action-pause") : QStringLiteral("action-play"), m_surface));
}

void PlaybackActs::changeSpeed(float factor)
{
    const float speed = m_playback.getSpeed() * factor;
    const float size = std::clamp(std::fabs(speed), Slowest, Fastest);
    m_playback.setSpeed(std::copysign(size, speed));
}

} // namespace scopix
