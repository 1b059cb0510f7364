// SPDX-License-Identifier: MIT
#include "viewport/Screenshot.h"

#include <xsg/sensors/SoSensorQueue.h>

#include <QCoreApplication>
#include <QDir>
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
    settle();
    const QPixmap picture = window.grab();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return cannotWrite(path, file.errorString());
    if (!picture.save(&file, "PNG") || !file.commit())
        return cannotWrite(path, file.errorString());
    return {};
}

} // namespace scopix
