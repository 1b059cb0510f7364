// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

namespace scopix
{

/// Small pictures of the files that the user had open last, kept in a folder of the user's own. GUI thread
/// only.
class FilePictures
{
public:
    static QString standardFolder();
    static QSize size() { return {176, 132}; }

    explicit FilePictures(QString folder = standardFolder());

    /// Keeps the middle of the picture for this file. One sentence where it cannot be kept, else empty.
    QString keep(const QString& file, const QImage& picture) const;
    /// Null where there is none, or none that can be read.
    QImage find(const QString& file) const;
    /// Removes those of all other files.
    void keepOnly(const QStringList& files) const;

private:
    QString pathOf(const QString& file) const;

    QString m_folder;
};

} // namespace scopix
