// SPDX-License-Identifier: MIT
#include "viewport/Screenshot.h"

#include "support/OutputFile.h"

#include <xsg/sensors/SoSensorQueue.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPixmap>
#include <QWidget>

namespace scopix
{

namespace
{

constexpr int MaxTurns = 20; // something that always changes must not keep the picture from being taken

} // namespace

QString cannotWritePicture(const QString& path, const QString& reason)
{
    return QCoreApplication::translate("Screenshot", "The picture “%1” cannot be written: %2.")
        .arg(QDir::toNativeSeparators(path), reason);
}

// The kinds of pictures that Qt writes; the ending chooses one.
QStringList pictureExtensions()
{
    QStringList extensions{QStringLiteral("png")};
    for (const QByteArray& format : QImageWriter::supportedImageFormats()) {
        if (format != "png")
            extensions += QString::fromLatin1(format);
    }
    return extensions;
}

void settleForPicture()
{
    for (int turn = 0; turn < MaxTurns; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        SoSensorQueue::getInstance().process();
    }
}

QString writePicture(const QString& path, const QImage& picture)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, QFileInfo(path).suffix().toLatin1());
    const QString problem = writer.write(picture) ? replaceFile(path, content) : writer.errorString();
    return problem.isEmpty() ? QString() : cannotWritePicture(path, problem);
}

QString saveScreenshot(QWidget& window, const QString& path)
{
    const QString reason = reasonAgainstWriting(path, pictureExtensions());
    if (!reason.isEmpty())
        return cannotWritePicture(path, reason);
    settleForPicture();
    return writePicture(path, window.grab().toImage());
}

} // namespace scopix
