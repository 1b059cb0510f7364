// SPDX-License-Identifier: MIT
// Pictures of a window as it would look on a screen, on machines without one too; and how pictures are
// written.
#pragma once

#include <QString>
#include <QStringList>

class QImage;
class QWidget;

namespace scopix
{

/// The ending of the path chooses the kind of picture; a path of another kind of file, such as a scene, is
/// refused. Lets the window come to rest first: layout, selection and live values. One sentence where the
/// picture cannot be written, which leaves no file behind; else empty.
QString saveScreenshot(QWidget& window, const QString& path);

/// Delivers what is posted and queued, so that a picture shows all that has happened.
void settleForPicture();
/// The endings, in lower case, of the kinds of pictures that can be written.
QStringList pictureExtensions();
/// Writes it whole or not at all, over whatever is there. One sentence where it cannot be written.
QString writePicture(const QString& path, const QImage& picture);
/// The sentence for a reason such as "it is a folder".
QString cannotWritePicture(const QString& path, const QString& reason);

} // namespace scopix
