// SPDX-License-Identifier: MIT
#include "language/Languages.h"

#include "language/ShownTexts.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>

namespace scopix
{

namespace
{

// Each catalogue holds a text once, whatever class says it (decisions.md: one-text-once).
constexpr auto OwnContext = "Scopix";
constexpr auto OfQt = "qtbase"; // decisions.md: parts-of-qt

QString systemLanguage()
{
    for (const QString& each : QLocale::system().uiLanguages()) {
        const QString language = each.section(QLatin1Char('-'), 0, 0);
        if (Languages::shipped().contains(language))
            return language;
    }
    return QStringLiteral("en");
}

QString fileOf(const QString& catalogue, const QString& language)
{
    const QString name = QStringLiteral("/%1_%2.qm").arg(catalogue, language);
    return catalogue == QLatin1String(OfQt) ? QLibraryInfo::location(QLibraryInfo::TranslationsPath) + name
                                            : QStringLiteral(":/i18n") + name;
}

} // namespace

Languages::Languages(QObject* parent)
    : QTranslator(parent)
    , m_names{QString::fromLatin1(OfQt), QStringLiteral("scopix")}
{
}

Languages* Languages::instance()
{
    const QCoreApplication* application = QCoreApplication::instance();
    return application ? application->findChild<Languages*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

void Languages::begin()
{
    auto* languages = new Languages(QCoreApplication::instance());
    QString language = qEnvironmentVariable("SCOPIX_LANGUAGE");
    if (language.isEmpty())
        language = SettingsFile(UserSettings::windowFile()).value(QStringLiteral("language")).toString();
    languages->speak(language);
    QCoreApplication::installTranslator(languages);
}

QStringList Languages::shipped()
{
    return {QStringLiteral("en"), QStringLiteral("de")};
}

QString Languages::nameOf(const QString& language)
{
    return language == QLatin1String("de") ? QStringLiteral("Deutsch") : QStringLiteral("English");
}

void Languages::speak(const QString& language)
{
    const QString wanted = language.isEmpty() ? systemLanguage() : language;
    if (wanted == m_language)
        return;
    const ShownTexts shown(said());
    m_language = wanted;
    {
        const QMutexLocker lock(&m_mutex);
        m_catalogues.clear();
        m_said.clear();
    }
    for (const QString& name : qAsConst(m_names))
        read(name);
    shown.showAgain(*this);
}

void Languages::add(const QString& catalogue)
{
    if (m_names.contains(catalogue))
        return;
    m_names.append(catalogue);
    read(catalogue);
}

void Languages::read(const QString& catalogue)
{
    QFile file(fileOf(catalogue, m_language));
    if (!file.open(QIODevice::ReadOnly))
        return; // its texts stay in English (decisions.md: default-texts)
    auto read = std::make_unique<Catalogue>();
    read->content = file.readAll();
    const auto* bytes = reinterpret_cast<const uchar*>(read->content.constData());
    const QMutexLocker lock(&m_mutex);
    if (read->texts.load(bytes, read->content.size()))
        m_catalogues.push_back(std::move(read));
}

QString Languages::look(const char* context, const char* source, const char* comment, int n) const
{
    for (const auto& each : m_catalogues) {
        for (const char* place : {context, OwnContext}) {
            const QString text = each->texts.translate(place, source, comment, n);
            if (!text.isEmpty())
                return text;
        }
    }
    return {};
}

QString Languages::translate(const char* context, const char* source, const char* comment, int n) const
{
    if (qstrlen(source) == 0)
        return {};
    const QMutexLocker lock(&m_mutex);
    const QString text = look(context, source, comment, n);
    m_said.insert(text.isEmpty() ? QString::fromUtf8(source) : text, {context, source, comment});
    return text;
}

QHash<QString, Languages::Asked> Languages::said() const
{
    const QMutexLocker lock(&m_mutex);
    return m_said;
}

} // namespace scopix
