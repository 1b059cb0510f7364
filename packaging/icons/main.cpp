// SPDX-License-Identifier: MIT
// Draws an SVG into PNG files: FILE.svg NAME.png FOLDER SIZE... writes FOLDER/SIZExSIZE/NAME.png.
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace
{

bool draw(QSvgRenderer& renderer, int size, const QString& file)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return QDir().mkpath(QFileInfo(file).path()) && image.save(file);
}

} // namespace

int main(int argc, char** argv)
{
    QSvgRenderer renderer(QString::fromLocal8Bit(argc > 4 ? argv[1] : ""));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "%s is no SVG that can be drawn.\n", argc > 1 ? argv[1] : "What was given");
        return 1;
    }
    for (int i = 4; i < argc; ++i) {
        const QString size = QString::fromLocal8Bit(argv[i]);
        const QString file = QStringLiteral("%1/%2x%2/%3")
                                 .arg(QString::fromLocal8Bit(argv[3]), size, QString::fromLocal8Bit(argv[2]));
        if (!draw(renderer, size.toInt(), file)) {
            std::fprintf(stderr, "%s cannot be written.\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
