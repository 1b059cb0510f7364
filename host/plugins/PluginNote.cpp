// SPDX-License-Identifier: MIT
#include "plugins/PluginNote.h"

#include "plugins/ElfFile.h"

#include <scopix/SpxPluginNote.h>

#include <QCoreApplication>
#include <QVersionNumber>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("PluginNote", text);
}

// A version that older users can do without fits; one of another major number or newer than what is here does
// not.
bool fits(const QVersionNumber& needed, const QVersionNumber& here)
{
    return needed.majorVersion() == here.majorVersion() && needed.minorVersion() <= here.minorVersion();
}

// The major number alone where that makes the difference.
QString shortest(const QVersionNumber& version, const QVersionNumber& other)
{
    return version.majorVersion() == other.majorVersion()
               ? QStringLiteral("%1.%2").arg(version.majorVersion()).arg(version.minorVersion())
               : QString::number(version.majorVersion());
}

QString whyUnfit(const QString& needed, const QString& here, const char* sentence)
{
    const auto neededVersion = QVersionNumber::fromString(needed);
    const auto hereVersion = QVersionNumber::fromString(here);
    if (neededVersion.isNull())
        return tr("its version note is damaged");
    if (fits(neededVersion, hereVersion))
        return {};
    return tr(sentence).arg(shortest(neededVersion, hereVersion), shortest(hereVersion, neededVersion));
}

QString cleaned(QString value)
{
    for (QChar& character : value) {
        if (!character.isPrint())
            character = QLatin1Char('?');
    }
    return value.left(40);
}

} // namespace

PluginNote PluginNote::parse(const QByteArray& text)
{
    PluginNote note;
    for (const QByteArray& line : QByteArray(text.constData()).split('\n')) { // up to its end, a NUL
        const int equals = line.indexOf('=');
        if (equals > 0)
            note.m_values.insert(QString::fromUtf8(line.left(equals)),
                                 cleaned(QString::fromUtf8(line.mid(equals + 1))));
    }
    return note;
}

PluginNote PluginNote::ofHost()
{
    PluginNote note = parse(SPX_PLUGIN_NOTE_TEXT("", ""));
    note.m_values[QStringLiteral("qt")] = QString::fromLatin1(qVersion()); // the one that runs
    return note;
}

QString PluginNote::whyUnfitFor(const PluginNote& host) const
{
    const auto check = [&](const QString& key, const char* sentence) {
        return whyUnfit(value(key), host.value(key), sentence);
    };
    const QString contract =
        check(QStringLiteral("contract"),
              QT_TRANSLATE_NOOP(
                  "PluginNote",
                  "it was made for version %1 of the plug-in interface, this program has version %2"));
    if (!contract.isEmpty())
        return contract;
    const QString qt =
        check(QStringLiteral("qt"),
              QT_TRANSLATE_NOOP("PluginNote", "it was made for Qt %1, this program runs with Qt %2"));
    if (!qt.isEmpty())
        return qt;
    const QString key = QStringLiteral("cxx");
    return value(key) == host.value(key) ? QString()
                                         : tr("it was made for the C++ library %1, this program uses %2")
                                               .arg(value(key), host.value(key));
}

QString whyNotLoadable(QIODevice& library)
{
    ElfFile file(library);
    const auto text = file.error().isEmpty() ? file.findNote("Scopix", 1) : std::nullopt;
    if (!file.error().isEmpty())
        return file.error();
    return text ? PluginNote::parse(*text).whyUnfitFor(PluginNote::ofHost()) : QString();
}

} // namespace scopix
