// SPDX-License-Identifier: MIT
#include "viewport/Screenshot.h"

#include "support/OutputFile.h"

#include <xsg/sensors/SoSensorQueue.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

namespace scopix
{

namespace
{

constexpr int MaxTurns = 20; // something that always changes must not keep the picture from being taken

QString cannotWrite(const QString& path, const QString& reason)
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

void settle()
{
    for (int turn = 0; turn < MaxTurns; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        SoSensorQueue::getInstance().process();
    }
}

} // namespace

QString saveScreenshot(QWidget& window, const QString& path)
{
    const QString reason = reasonAgainstWriting(path, pictureExtensions());
    if (!reason.isEmpty())
        return cannotWrite(path, reason);
    settle();
    const QPixmap picture = window.grab();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return cannotWrite(path, file.errorString());
    if (!picture.save(&file, QFileInfo(path).suffix().toLatin1()) || !file.commit())
        return cannotWrite(path, file.errorString());
    return {};
}

} // namespace scopix
