// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewSurface.h"

#include <xsg/render/SoRenderer.h>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QSize>

class QLabel;

namespace scopix
{

/// Has the pictures of a surface drawn between the user's events. A large scene takes many turns of the event
/// loop; meanwhile the surface shows its last picture of the same scene, or the ground, and a line says what
/// goes on. A picture that was begun is finished although something has changed since, and the next one
/// follows. GUI thread only.
class PictureInPieces : public QObject
{
    Q_OBJECT

public:
    using Time = std::chrono::steady_clock::time_point;

    PictureInPieces(QWidget& surface, ViewSurface::Prepare prepare, ViewSurface::Drawn drawn);

    /// The picture is no longer right.
    void redraw();
    /// Draws what is missing, or a part of it where `mayPause`: by `draw(content, until)`, which gives a
    /// SoRenderer::Progress. True when there is another picture now.
    template <class Draw>
    bool draw(SoRenderer& renderer, const QSize& size, bool mayPause, const Draw& draw)
    {
        bool isNew = false;
        // At once, what was begun before a change is finished, and then drawn again.
        for (int i = 0; i < (mayPause ? 1 : 2) && isNeeded(size); ++i) {
            const ViewContent content = begin(renderer, size);
            isNew = end(renderer, draw(content, mayPause ? pieceEnd() : Time::max())) || isNew;
        }
        return isNew;
    }
    /// Whether there is a picture of the present scene to show.
    bool hasPicture() const { return m_hasPicture; }
    bool isUnfinished() const { return m_isUnfinished; }
    QColor getGround() const;
    /// Pictures drawn so far.
    int getDrawCount() const { return m_drawCount; }
    /// There is no picture any more.
    void forget();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    bool isNeeded(const QSize& size) const;
    ViewContent prepare(SoRenderer& renderer) const;
    ViewContent begin(SoRenderer& renderer, const QSize& size);
    bool end(const SoRenderer& renderer, SoRenderer::Progress progress);
    static Time pieceEnd();

    QWidget& m_surface;
    ViewSurface::Prepare m_prepare;
    ViewSurface::Drawn m_drawn;
    QLabel* m_line;
    QBasicTimer m_timer; // runs while something is missing
    QElapsedTimer m_sinceBegin;
    QSize m_size;
    std::uint64_t m_rootId = 0;
    bool m_isOld = true; // something has changed since the picture was begun
    bool m_isUnfinished = false;
    bool m_hasPicture = false;
    int m_drawCount = 0;
};

} // namespace scopix
