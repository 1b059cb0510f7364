// SPDX-License-Identifier: MIT
#include "OwedSaves.h"

#include "CounterProfileFile.h"
#include "CounterXml.h"

#include <QBuffer>
#include <QFile>

namespace
{

bool parse(QByteArray bytes, QDomDocument& document)
{
    QBuffer content(&bytes);
    QString problem;
    return counterProfileFile::parse(&content, document, problem);
}

} // namespace

OwedSaves::Owed OwedSaves::contentOf(const QDomDocument& document)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    counterProfileFile::writeDocument(&content, document);
    return {content.data(), counterXml::causeOfUnsavable(document)};
}

bool OwedSaves::save(const QString& path, QDomDocument& document, QWidget* parent, JoinedProfiles& joined)
{
    Owed owed = contentOf(document);
    m_owed.remove(m_present); // the same document, which may have another file by now
    m_owed.remove(path);
    const bool isSaved = settle(path, owed, document, parent, joined);
    retry(parent);
    if (!isSaved)
        m_owed.insert(path, owed);
    m_present = path;
    return isSaved;
}

bool OwedSaves::saveOnce(const QString& path, QDomDocument& document, QWidget* parent, JoinedProfiles& joined)
{
    Owed owed = contentOf(document);
    if (owed.flaw.isEmpty() && !m_known.contains(path))
        owed.flaw = counterProfileFile::reasonAgainstName(path);
    return settle(path, owed, document, parent, joined);
}

void OwedSaves::retry(QWidget* parent)
{
    QMap<QString, Owed> owed = m_owed;
    counterMerge::Joined joined;
    for (auto at = owed.begin(); at != owed.end(); ++at)
        settle(at.key(), at.value(), parent, joined);
}

// What has joined becomes part of the document that everybody shares.
bool OwedSaves::settle(const QString& path, Owed& owed, QDomDocument& document, QWidget* parent,
                       JoinedProfiles& joined)
{
    counterMerge::Joined all;
    if (!settle(path, owed, parent, all))
        return false;
    QDomDocument present;
    if (all.isChanged && parse(owed.content, present)) {
        counterProfileFile::replace(document, present);
        counterProfileFile::readCustomCounters(document);
    }
    joined = all.profiles;
    return true;
}

bool OwedSaves::settle(const QString& path, Owed& owed, QWidget* parent, counterMerge::Joined& joined)
{
    QByteArray content = owed.content;
    const auto joinedContent = [&] {
        joined = join(path, content);
        return content;
    };
    if (!counterProfileFile::writeFile(path, joinedContent, owed.flaw, parent))
        return false;
    owed.content = content;
    m_known.insert(path, content);
    m_owed.remove(path);
    m_owed.remove(QString()); // what had no file to go to has found one
    return true;
}

// A file that cannot be read is written anew.
counterMerge::Joined OwedSaves::join(const QString& path, QByteArray& content) const
{
    QFile file(path);
    const QByteArray before = m_known.value(path);
    const QByteArray present = counterProfileFile::openToRead(file).isEmpty() ? file.readAll() : QByteArray();
    QDomDocument mine;
    QDomDocument base;
    QDomDocument theirs;
    if (before.isEmpty() || present == before || !parse(content, mine) || !parse(before, base) ||
        !parse(present, theirs))
        return {};
    counterMerge::Joined joined = counterMerge::join(mine, base, theirs);
    if (joined.isChanged)
        content = contentOf(mine).content;
    return joined;
}

OwedSaves::JoinedProfiles OwedSaves::noteRead(const QString& path, const QDomDocument& document)
{
    const QByteArray before = m_known.value(path);
    m_known.insert(path, contentOf(document).content);
    QDomDocument base;
    QDomDocument mine;
    if (!parse(before, base) || !parse(before, mine))
        return {};
    return counterMerge::join(mine, base, document).profiles;
}
