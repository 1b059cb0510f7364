// SPDX-License-Identifier: MIT
#include "settings/Preferences.h"

#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"

#include <xsg/core/SoPreferences.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/support/SpecialFile.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr qint64 LargestFile = 1 << 20;

QString group()
{
    return QStringLiteral("preferences");
}

QString path()
{
    const QString chosen = qEnvironmentVariable("XSG_PREFERENCES");
    return chosen.isEmpty() ? UserSettings::path(QStringLiteral("preferences.conf")) : chosen;
}

void report(const QIODevice& device, int line, const SbSentence& sentence)
{
    const auto* file = qobject_cast<const QFile*>(&device);
    SoReadError::post(file ? file->fileName().toStdString() : std::string(), line, 0, sentence);
}

// A '#' begins a comment at the start of a word; inside one, as in a file name, it stands for itself.
bool readLine(QString line, QSettings::SettingsMap& values)
{
    static const QRegularExpression comment(QStringLiteral("(^|\\s)#.*$"));
    static const QRegularExpression blank(QStringLiteral("^\\s*$"));
    static const QRegularExpression setting(QStringLiteral("^\\s*(\\w+)\\s*=\\s*(.*?)\\s*$"));
    line.remove(QLatin1Char('\n')).remove(comment);
    const QRegularExpressionMatch match = setting.match(line);
    if (match.hasMatch())
        values.insert(match.captured(1), match.captured(2));
    return match.hasMatch() || blank.match(line).hasMatch();
}

// Some editors begin every file with it.
void skipByteOrderMark(QIODevice& device)
{
    const QByteArray mark("\xEF\xBB\xBF");
    if (device.peek(mark.size()) == mark)
        device.skip(mark.size());
}

// The bytes of a value are kept as they are, whatever their encoding: each is one Latin-1 character.
bool readPreferences(QIODevice& device, QSettings::SettingsMap& values)
{
    if (device.size() > LargestFile) {
        report(device, 0, SbSentence("The settings file is too large; expected at most 1 MiB."));
        return true;
    }
    skipByteOrderMark(device);
    for (int number = 1; !device.atEnd(); ++number) {
        const QByteArray line = device.readLine();
        if (line.isEmpty()) { // a disk that fails is never at its end
            report(device, number, SbSentence("The settings file cannot be read to its end."));
            return true;
        }
        if (!readLine(QString::fromLatin1(line), values))
            report(device, number, SbSentence("The line is no setting; expected NAME = value."));
    }
    return true;
}

bool refuseToWrite(QIODevice& /*device*/, const QSettings::SettingsMap& /*values*/)
{
    return false; // only the user writes this file
}

QSettings::Format format()
{
    static const QSettings::Format registered =
        QSettings::registerFormat(QStringLiteral("conf"), readPreferences, refuseToWrite, Qt::CaseSensitive);
    return registered;
}

} // namespace

void Preferences::feed()
{
    const QVariantMap own = SettingsFile(UserSettings::windowFile()).valuesIn(group());
    for (auto each = own.begin(); each != own.end(); ++each)
        SoPreferences::setValue(each.key().toLatin1().constData(), each->toString().toStdString());
    const std::string file = QFile::encodeName(path()).toStdString();
    if (xsg::isSpecialFile(file)) { // before it is opened, for which a pipe would wait
        if (!QFileInfo(path()).isDir())
            SoReadError::post(file, 0, 0,
                              SbSentence("A settings file was expected, but this is no regular file."));
        return;
    }
    const QSettings preferences(path(), format());
    for (const QString& name : preferences.allKeys())
        SoPreferences::setValue(name.toLatin1().constData(),
                                preferences.value(name).toString().toLatin1().toStdString());
}

QString Preferences::set(const QString& name, const QString& value)
{
    SoPreferences::setValue(name.toLatin1().constData(), value.toStdString());
    return SettingsFile(UserSettings::windowFile()).setValue(group() + QLatin1Char('/') + name, value);
}

std::size_t Preferences::undoMemory()
{
    constexpr int Usual = 256;
    constexpr int Most = 1 << 20;
    return static_cast<std::size_t>(std::clamp(SoPreferences::getInt("SCOPIX_UNDO_MEMORY", Usual), 0, Most))
           << 20;
}

} // namespace scopix
