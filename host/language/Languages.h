// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QMutex>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace scopix
{

/// What turns the texts of the program and of its plug-ins into the user's language, and remembers what it
/// was asked for, so that what is shown can be turned into another one. One for the application, which owns
/// it; an application around the host has none and stays as it is. Translates on any thread; all else on the
/// GUI thread only.
class Languages : public QTranslator
{
    Q_OBJECT

public:
    /// The text of a source, as it was asked for.
    struct Asked {
        QByteArray context;
        QByteArray source;
        QByteArray comment;
    };

    /// Null where begin() was not called.
    static Languages* instance();
    /// Speaks what the environment (SCOPIX_LANGUAGE), the settings or else the system say.
    static void begin();

    /// Their codes, which settings hold: "en", "de".
    static QStringList shipped();
    /// How its speakers call it.
    static QString nameOf(const QString& language);
    /// An empty one stands for the system's; one that is not shipped for English.
    void speak(const QString& language);
    QString current() const { return m_language; }
    /// Texts of a library: the resources ":/i18n/NAME_LANGUAGE.qm", which it may take away again.
    void add(const QString& catalogue);

    QString translate(const char* context, const char* source, const char* comment = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override { return false; } // it answers, if only that a text stays as it is
    /// What was asked for so far, by what was answered.
    QHash<QString, Asked> said() const;

private:
    explicit Languages(QObject* parent);
    void read(const QString& catalogue);
    QString look(const char* context, const char* source, const char* comment, int n) const;

    struct Catalogue {
        QByteArray content; // what the translator reads from
        QTranslator texts;
    };

    QString m_language;
    QStringList m_names;
    mutable QMutex m_mutex; // of all below
    std::vector<std::unique_ptr<Catalogue>> m_catalogues;
    mutable QHash<QString, Asked> m_said;
};

} // namespace scopix
