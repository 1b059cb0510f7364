// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

class QDomDocument;
class QWidget;

/// The profile files that could not be written, with what they are to hold: each is tried again whenever one
/// is saved, until it is written. Every failure is reported in a box over `parent`. GUI thread only.
class OwedSaves
{
public:
    /// Writes the document to the file of this name, then what is owed to others. False where the document
    /// itself could not be written, which is owed from then on.
    bool save(const QString& path, const QDomDocument& document, QWidget* parent);
    /// Writes the document to a file that is only a try, where nothing is owed afterwards.
    bool saveOnce(const QString& path, const QDomDocument& document, QWidget* parent);
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
    bool settle(const QString& path, const Owed& owed, QWidget* parent);

    QMap<QString, Owed> m_owed;
    QString m_present; // the last file of the document that is in use
};
