// SPDX-License-Identifier: MIT
#include "viewport/PictureInPieces.h"

#include "theme/Theme.h"

#include <xsg/frames/SoFramePhase.h>
#include <xsg/nodes/base/SoNode.h>

#include <QLabel>
#include <QWidget>

namespace scopix
{

namespace
{

// Short enough for the user's events to come through, with the wait for what the rasterizer has begun.
constexpr std::chrono::milliseconds PieceTime{25};
// Until then the last picture does without an explanation.
constexpr int PatienceMs = 500;

} // namespace

PictureInPieces::PictureInPieces(QWidget& surface, ViewSurface::Prepare prepare, ViewSurface::Drawn drawn)
    : m_surface(surface)
    , m_prepare(std::move(prepare))
    , m_drawn(std::move(drawn))
    , m_line(new QLabel(tr("Preparing the picture…"), &surface))
{
    m_line->setObjectName(QStringLiteral("preparingPicture"));
    m_line->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_line->setMargin(4);
    m_line->adjustSize();
    m_line->hide();
}

void PictureInPieces::redraw()
{
    m_isOld = true;
    m_surface.update();
}

void PictureInPieces::forget()
{
    m_isOld = true;
    m_isUnfinished = false;
    m_hasPicture = false;
}

bool PictureInPieces::isNeeded(const QSize& size) const
{
    return m_isOld || m_isUnfinished || size != m_size;
}

ViewContent PictureInPieces::prepare(SoRenderer& renderer) const
{
    const SoFrameUpdate update(SoFrameLog::getInstance());
    return m_prepare(renderer);
}

ViewContent PictureInPieces::begin(SoRenderer& renderer, const QSize& size)
{
    const ViewContent content = prepare(renderer);
    const std::uint64_t rootId = content.root ? content.root->getNodeId() : 0;
    const bool isOther = rootId != m_rootId;
    if (!m_isUnfinished || isOther || size != m_size) {
        m_isOld = false;
        m_sinceBegin.start();
    }
    m_hasPicture = m_hasPicture && !isOther;
    m_rootId = rootId;
    m_size = size;
    return content;
}

bool PictureInPieces::end(const SoRenderer& renderer, SoRenderer::Progress progress)
{
    m_isUnfinished = progress == SoRenderer::Progress::Unfinished;
    if (!m_isUnfinished) {
        ++m_drawCount;
        m_hasPicture = progress == SoRenderer::Progress::Finished;
        m_drawn(renderer);
    }
    m_line->setVisible(m_isUnfinished && (!m_hasPicture || m_sinceBegin.hasExpired(PatienceMs)));
    if (m_isUnfinished || m_isOld)
        m_timer.start(0, this);
    return progress == SoRenderer::Progress::Finished;
}

// From the event loop: what asks for painting while it paints is painted before the user's events.
void PictureInPieces::timerEvent(QTimerEvent* /*event*/)
{
    m_timer.stop();
    m_surface.update();
}

PictureInPieces::Time PictureInPieces::pieceEnd()
{
    return std::chrono::steady_clock::now() + PieceTime;
}

QColor PictureInPieces::getGround() const
{
    return groundColor(m_surface.palette());
}

} // namespace scopix
