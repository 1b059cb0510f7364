// SPDX-License-Identifier: MIT
#include "PlayPauseIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPointer>
#include <QTimer>

namespace
{

class PlayPauseEngine : public QIconEngine
{
public:
    explicit PlayPauseEngine(const QTimer* timer)
        : m_timer(timer)
        , m_play(QStringLiteral(":/PerfCounter_icons/Icons/player_play.png"))
        , m_pause(QStringLiteral(":/PerfCounter_icons/Icons/player_pause.png"))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return new PlayPauseEngine(m_timer); }

private:
    const QIcon& icon() const { return m_timer && m_timer->isActive() ? m_pause : m_play; }

    QPointer<const QTimer> m_timer;
    QIcon m_play;
    QIcon m_pause;
};

} // namespace

QIcon playPauseIcon(const QTimer& timer)
{
    return QIcon(new PlayPauseEngine(&timer));
}
