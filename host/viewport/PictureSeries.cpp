// SPDX-License-Identifier: MIT
#include "viewport/PictureSeries.h"

#include "support/OutputFile.h"
#include "viewport/Screenshot.h"
#include "viewport/TextureImageLoader.h"

#include <scopix/SpxSentence.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <algorithm>
#include <cstring>

namespace scopix
{

namespace
{

constexpr float FullTurn = 6.2831853F;
constexpr int TileSize = 1024;
// What wide lines and points need beside the tile they are in.
constexpr int TileMargin = 16;

QString tr(const char* text)
{
    return QCoreApplication::translate("PictureSeries", text);
}

bool hasTransparency(const QString& path)
{
    static const QStringList kinds{QStringLiteral("png"), QStringLiteral("tif"), QStringLiteral("tiff"),
                                   QStringLiteral("webp")};
    return kinds.contains(QFileInfo(path).suffix().toLower());
}

// In the picture's coordinates, which begin at the upper left.
std::vector<QRect> tilesOf(const QSize& size)
{
    std::vector<QRect> tiles;
    for (int top = 0; top < size.height(); top += TileSize) {
        for (int left = 0; left < size.width(); left += TileSize)
            tiles.push_back(QRect(left, top, TileSize, TileSize) & QRect(QPoint(), size));
    }
    return tiles;
}

// One picture after the other, tile by tile.
class Painter
{
public:
    Painter(const PictureSubject& subject, const PictureOrder& order)
        : m_subject(subject)
        , m_order(order)
        , m_tiles(tilesOf(order.size))
    {
        SoRenderer& renderer = m_drawing.getRenderer();
        renderer.setFittingImageReader(TextureImageLoader::read);
        if (subject.setUp)
            subject.setUp(renderer);
        const QColor ground = order.isTransparent ? QColor(Qt::black) : subject.ground;
        renderer.setBackground(SbColor(static_cast<float>(ground.redF()), static_cast<float>(ground.greenF()),
                                       static_cast<float>(ground.blueF())),
                               order.isTransparent ? 0.0F : 1.0F);
    }

    int getTileCount() const { return static_cast<int>(m_tiles.size()); }
    // Where there is not enough memory, the picture is null.
    void begin(float turn)
    {
        m_image = QImage(m_order.size, m_order.isTransparent ? QImage::Format_RGBA8888_Premultiplied
                                                             : QImage::Format_RGBX8888);
        m_camera = m_subject.camera.turned(turn, SoBoundingBoxAction().getBox(m_subject.root.get()));
    }
    // A sentence where it cannot be drawn.
    QString drawTile(int number)
    {
        const QRect tile = m_tiles[static_cast<std::size_t>(number)];
        const QRect drawn =
            m_tiles.size() == 1 ? tile : tile.adjusted(-TileMargin, -TileMargin, TileMargin, TileMargin);
        const QSize whole = m_order.size;
        if (!m_drawing.renderTile(
                m_subject.root.get(), m_camera.get(),
                {whole.width(), whole.height(), drawn.left(), whole.height() - drawn.top() - drawn.height()},
                drawn.width(), drawn.height(), m_pixels))
            return SpxSentence::translated(m_drawing.getError());
        const QPoint inset = tile.topLeft() - drawn.topLeft();
        for (int row = 0; row < tile.height(); ++row)
            std::memcpy(m_image.scanLine(tile.top() + row) + std::ptrdiff_t{4} * tile.left(),
                        m_pixels.at(inset.x(), inset.y() + row), std::size_t{4} * std::size_t(tile.width()));
        return {};
    }
    const QImage& getImage() const { return m_image; }

private:
    const PictureSubject& m_subject;
    const PictureOrder& m_order;
    std::vector<QRect> m_tiles;
    SoOffscreenRenderer m_drawing;
    SoRef<SoCamera> m_camera;
    SoPixels m_pixels;
    QImage m_image;
};

} // namespace

QStringList PictureOrder::getPaths() const
{
    if (count == 1)
        return {path};
    const QFileInfo file(path);
    const int digits = QString::number(count).size();
    QStringList paths;
    for (int i = 1; i <= count; ++i)
        paths += QDir(file.path())
                     .filePath(QStringLiteral("%1-%2.%3")
                                   .arg(file.completeBaseName(),
                                        QString::number(i).rightJustified(digits, QLatin1Char('0')),
                                        file.suffix()));
    return paths;
}

QString PictureOrder::findSizeProblem() const
{
    const qint64 pixels = qint64{size.width()} * size.height();
    if (size.isEmpty() || std::max(size.width(), size.height()) > LongestSide || pixels > MostPixels)
        return tr("A picture of %1 × %2 pixels cannot be made: each side may have 1 to %3, and all of it "
                  "%L4.")
            .arg(QString::number(size.width()), QString::number(size.height()), QString::number(LongestSide))
            .arg(MostPixels);
    if (count < 1 || count > MostPictures)
        return tr("%1 pictures of one turn cannot be made: choose 2 to %2.").arg(count).arg(MostPictures);
    return {};
}

QString PictureOrder::findProblem() const
{
    const QString sizeProblem = findSizeProblem();
    if (!sizeProblem.isEmpty())
        return sizeProblem;
    const QStringList kinds = pictureExtensions();
    if (isTransparent && kinds.contains(QFileInfo(path).suffix().toLower()) && !hasTransparency(path))
        return tr("The picture “%1” cannot be transparent, which .%2 files cannot hold: choose .png.")
            .arg(QDir::toNativeSeparators(path), QFileInfo(path).suffix());
    for (const QString& each : getPaths()) {
        const QString reason = reasonAgainstWriting(each, kinds);
        if (!reason.isEmpty())
            return cannotWritePicture(each, reason);
    }
    return {};
}

PictureSeries PictureSeries::make(const PictureSubject& subject, const PictureOrder& order,
                                  const Progress& progress)
{
    PictureSeries series;
    series.problem = order.findProblem();
    if (!series.problem.isEmpty())
        return series;
    Painter painter(subject, order);
    const int total = painter.getTileCount() * order.count;
    int done = 0;
    for (const QString& path : order.getPaths()) {
        painter.begin(FullTurn * static_cast<float>(series.written) / static_cast<float>(order.count));
        if (painter.getImage().isNull()) {
            series.problem = cannotWritePicture(path, tr("there is not enough memory for it"));
            return series;
        }
        for (int tile = 0; tile < painter.getTileCount(); ++tile) {
            series.isCancelled = progress && !progress(done++, total);
            if (series.isCancelled)
                return series;
            const QString reason = painter.drawTile(tile);
            if (!reason.isEmpty())
                series.problem = reason;
            if (!reason.isEmpty())
                return series;
        }
        series.problem = writePicture(path, painter.getImage());
        if (!series.problem.isEmpty())
            return series;
        ++series.written;
    }
    return series;
}

} // namespace scopix
