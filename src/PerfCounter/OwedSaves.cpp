// SPDX-License-Identifier: MIT
#include "OwedSaves.h"

#include "CounterProfileFile.h"
#include "CounterXml.h"

#include <QBuffer>

OwedSaves::Owed OwedSaves::contentOf(const QDomDocument& document)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    counterProfileFile::writeDocument(&content, document);
    return {content.data(), counterXml::causeOfUnsavable(document)};
}

bool OwedSaves::save(const QString& path, const QDomDocument& document, QWidget* parent)
{
    const Owed owed = contentOf(document);
    m_owed.remove(m_present); // the same document, which may have another file by now
    m_owed.remove(path);
    const bool isSaved = settle(path, owed, parent);
    retry(parent);
    if (!isSaved)
        m_owed.insert(path, owed);
    m_present = path;
    return isSaved;
}

bool OwedSaves::saveOnce(const QString& path, const QDomDocument& document, QWidget* parent)
{
    return settle(path, contentOf(document), parent);
}

void OwedSaves::retry(QWidget* parent)
{
    const QMap<QString, Owed> owed = m_owed;
    for (auto at = owed.begin(); at != owed.end(); ++at)
        settle(at.key(), at.value(), parent);
}

bool OwedSaves::settle(const QString& path, const Owed& owed, QWidget* parent)
{
    if (!counterProfileFile::writeFile(path, owed.content, owed.flaw, parent))
        return false;
    m_owed.remove(path);
    m_owed.remove(QString()); // what had no file to go to has found one
    return true;
}
