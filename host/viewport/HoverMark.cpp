// SPDX-License-Identifier: MIT
#include "viewport/HoverMark.h"

#include "viewport/SceneParts.h"
#include "viewport/SceneView.h"

#include <QElapsedTimer>
#include <QPainter>

namespace scopix
{

namespace
{

constexpr int MostPixelsAcross = 1280; // of the line's picture
constexpr qint64 SlowMs = 150;
constexpr int LabelMargin = 4;

} // namespace

HoverMark::Stamp HoverMark::stampNow() const
{
    Stamp stamp;
    const SoNode* scene = m_view.getScene();
    const SoCamera& camera = m_view.getCamera();
    stamp.size = m_view.size();
    stamp.toPicture = camera.getViewMatrix() *
                      camera.getProjectionMatrix(static_cast<float>(stamp.size.width()) /
                                                 static_cast<float>(std::max(1, stamp.size.height())));
    stamp.scene = scene ? scene->getNodeId() : 0;
    stamp.changes = scene ? scene->getChangeCount() : 0;
    return stamp;
}

bool HoverMark::isOld() const
{
    const Stamp now = stampNow();
    return now.scene != m_stamp.scene || now.changes != m_stamp.changes || now.size != m_stamp.size ||
           now.toPicture != m_stamp.toPicture;
}

void HoverMark::show(const SoPath& part, const QPoint& place)
{
    std::vector<std::uint64_t> numbers;
    for (int i = 0; i < part.getLength(); ++i)
        numbers.push_back(part.getNode(i)->getNodeId());
    const bool isSame = numbers == m_part && (part.isEmpty() || !isOld());
    if (isSame && (part.isEmpty() || place == m_place))
        return;
    m_place = place;
    if (!isSame) {
        m_part = std::move(numbers);
        m_text = partText(part);
        m_stamp = stampNow();
        m_line = QImage();
        if (!part.isEmpty())
            findLine(part);
    }
    m_view.repaintTools();
}

void HoverMark::findLine(const SoPath& part)
{
    SoNode* node = part.getTail();
    if (node->getNodeId() == m_slowPart || !(node->asGroup() || node->asShape()))
        return;
    QElapsedTimer time;
    time.start();
    QSize size = m_view.size() * m_view.devicePixelRatioF();
    if (size.width() > MostPixelsAcross || size.height() > MostPixelsAcross)
        size.scale(MostPixelsAcross, MostPixelsAcross, Qt::KeepAspectRatio);
    const std::vector<std::uint32_t> covered = m_view.findCovered(part, size);
    if (time.elapsed() > SlowMs)
        m_slowPart = node->getNodeId();
    const auto width = static_cast<std::size_t>(size.width());
    if (covered.size() != width * static_cast<std::size_t>(size.height()))
        return;
    m_line = QImage(size, QImage::Format_ARGB32_Premultiplied);
    m_line.fill(Qt::transparent);
    const QRgb color = m_view.palette().color(QPalette::Highlight).rgba();
    for (int y = 1; y + 1 < size.height(); ++y) {
        // Rows come from the bottom up.
        auto* row = reinterpret_cast<QRgb*>(m_line.scanLine(size.height() - 1 - y));
        const std::uint32_t* at = covered.data() + static_cast<std::size_t>(y) * width;
        for (std::size_t x = 1; x + 1 < width; ++x) {
            const auto isIn = [&](std::ptrdiff_t by) { return at[static_cast<std::ptrdiff_t>(x) + by] != 0; };
            const auto below = static_cast<std::ptrdiff_t>(width);
            if (isIn(0) && !(isIn(1) && isIn(-1) && isIn(below) && isIn(-below)))
                row[x] = color;
        }
    }
}

void HoverMark::paint(QPainter& painter) const
{
    if (m_part.empty())
        return;
    if (!m_line.isNull() && !isOld())
        painter.drawImage(m_view.rect(), m_line);
    paintLabel(painter, m_place + QPoint(16, 20), m_text, m_view.rect());
}

void paintLabel(QPainter& painter, const QPoint& place, const QString& text, const QRect& bounds)
{
    const QFontMetrics metrics = painter.fontMetrics();
    QRect plate = metrics.boundingRect(QRect(0, 0, bounds.width(), bounds.height()), Qt::AlignLeft, text);
    plate.adjust(-LabelMargin, -LabelMargin / 2, LabelMargin, LabelMargin / 2);
    plate.moveTopLeft(place);
    plate.moveRight(std::min(plate.right(), bounds.right()));
    plate.moveBottom(std::min(plate.bottom(), bounds.bottom()));
    plate.moveLeft(std::max(plate.left(), bounds.left()));
    plate.moveTop(std::max(plate.top(), bounds.top()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 30, 30, 200));
    painter.drawRoundedRect(plate, 3, 3);
    painter.setPen(Qt::white);
    painter.drawText(plate.adjusted(LabelMargin, LabelMargin / 2, 0, 0), Qt::AlignLeft, text);
}

} // namespace scopix
