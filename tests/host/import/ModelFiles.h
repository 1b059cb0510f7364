// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

inline QString shippedModel(const char* name)
{
    return QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/") + QLatin1String(name);
}

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Model files for the tests in a temporary folder: the shipped ones, and others made from them.
class ModelFiles
{
public:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QString write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }
    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};
