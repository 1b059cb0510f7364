// SPDX-License-Identifier: MIT
#pragma once

#include "CounterMerge.h"

#include <QByteArray>
#include <QMap>
#include <QString>

class QDomDocument;
class QWidget;

/// Writes profile files. Knows those that could not be written, with what they are to hold: each is tried
/// again whenever one is saved, until it is written. Every failure is reported in a box over `parent`. Knows
/// also what each file held when it was last read or written here: what another program has done to it since
/// then joins what is written, and is returned. GUI thread only.
class OwedSaves
{
public:
    using JoinedProfiles = QList<counterMerge::JoinedProfile>;

    /// Writes the document to the file of this name, then what is owed to others. False where the document
    /// itself could not be written, which is owed from then on.
    bool save(const QString& path, QDomDocument& document, QWidget* parent, JoinedProfiles& joined);
    /// Writes the document to a file that is only a try, where nothing is owed afterwards.
    bool saveOnce(const QString& path, QDomDocument& document, QWidget* parent, JoinedProfiles& joined);
    /// The document was just read from this file. Returns what another program has done to it since the last
    /// time, if there was one.
    JoinedProfiles noteRead(const QString& path, const QDomDocument& document);
    /// What is saved from now on is another document; what is owed of the present one stays so.
    void turnToAnotherDocument() { m_present.clear(); }
    /// Tries again whatever is owed.
    void retry(QWidget* parent);
    bool isOwed(const QString& path) const { return m_owed.contains(path); }

private:
    struct Owed {
        QByteArray content;
        QString flaw; // why it could never be read again
    };
    static Owed contentOf(const QDomDocument& document);
    bool settle(const QString& path, Owed& owed, QWidget* parent, counterMerge::Joined& joined);
    bool settle(const QString& path, Owed& owed, QDomDocument& document, QWidget* parent,
                JoinedProfiles& joined);
    counterMerge::Joined join(const QString& path, QByteArray& content) const;

    QMap<QString, Owed> m_owed;
    QMap<QString, QByteArray> m_known; // what a file held when it was last read or written
    QString m_present;                 // the last file of the document that is in use
};
