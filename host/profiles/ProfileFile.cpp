// SPDX-License-Identifier: MIT
#include "profiles/ProfileFile.h"

#include "settings/SettingsLock.h"
#include "settings/UserSettings.h"
#include "support/InputFile.h"
#include "support/OutputFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr qint64 LargestFile = 4 * 1024 * 1024;
const QString All = QStringLiteral("all");
const QString Offered = QStringLiteral("offered");

const QStringList& later()
{
    static const QStringList names{QStringLiteral("Classic")};
    return names;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("ProfileFile", text);
}

QJsonValue toJson(const ExtensionChoice& choice)
{
    return choice.all ? QJsonValue(All) : QJsonValue(QJsonArray::fromStringList(choice.names));
}

QJsonObject toJson(const ProfileChoice& profile)
{
    return {{QStringLiteral("name"), profile.name},
            {QStringLiteral("editors"), toJson(profile.editors)},
            {QStringLiteral("tools"), toJson(profile.tools)}};
}

// Thrown and caught in this file only.
struct Damage {
    QString text;
};

QString place(int profile)
{
    return tr("profile %1").arg(profile + 1);
}

QString textIn(const QJsonValue& value, const QString& where)
{
    if (!value.isString())
        throw Damage{tr("%1 must be a text").arg(where)};
    return value.toString();
}

QJsonArray arrayIn(const QJsonValue& value, const QString& where, const QString& expected)
{
    if (!value.isArray())
        throw Damage{tr("%1 must be %2").arg(where, expected)};
    return value.toArray();
}

ExtensionChoice choiceIn(const QJsonObject& profile, const QString& key, const QString& where)
{
    const QJsonValue value = profile.value(key);
    const QString here = tr("“%1” of %2").arg(key, where);
    if (value == QJsonValue(All))
        return {true, {}};
    ExtensionChoice choice;
    for (const QJsonValue& name : arrayIn(value, here, tr("“all” or a list of names")))
        choice.names += textIn(name, tr("each name in %1").arg(here));
    return choice;
}

ProfileChoice profileIn(const QJsonValue& value, const QString& where)
{
    if (!value.isObject())
        throw Damage{tr("%1 must be an object in braces").arg(where)};
    const QJsonObject object = value.toObject();
    ProfileChoice profile;
    profile.name = textIn(object.value(QStringLiteral("name")), tr("“name” of %1").arg(where));
    profile.editors = choiceIn(object, QStringLiteral("editors"), where);
    profile.tools = choiceIn(object, QStringLiteral("tools"), where);
    return profile;
}

ProfileChoice everything()
{
    return {HostProfile::defaultName(), {true, {}}, {true, {}}};
}

// "Default" is always there and always controls everything, whatever the file says of it.
void addDefault(std::vector<ProfileChoice>& profiles)
{
    const auto isDefault = [](const ProfileChoice& each) { return each.name == HostProfile::defaultName(); };
    const auto found = std::find_if(profiles.begin(), profiles.end(), isDefault);
    if (found == profiles.end())
        profiles.insert(profiles.begin(), everything());
    else
        *found = everything();
}

ProfileSettings settingsIn(const QJsonObject& root)
{
    ProfileSettings settings;
    const QJsonArray list = arrayIn(root.value(QStringLiteral("profiles")), QStringLiteral("“profiles”"),
                                    tr("a list of profiles"));
    for (int i = 0; i < list.size(); ++i) {
        ProfileChoice profile = profileIn(list.at(i), place(i));
        const QString problem = ProfileFile::nameProblem(profile.name, settings.profiles);
        if (!problem.isEmpty())
            throw Damage{tr("%1: %2").arg(place(i), problem)};
        settings.profiles.push_back(std::move(profile));
    }
    addDefault(settings.profiles);
    settings.active = textIn(root.value(QStringLiteral("active")), QStringLiteral("“active”"));
    const QJsonArray offered = root.value(Offered).toArray();
    for (const QJsonValue& name : offered)
        settings.offered += name.toString();
    return settings;
}

ProfileSettings parse(const QByteArray& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        const int line = text.left(error.offset).count('\n') + 1;
        throw Damage{tr("line %1: %2").arg(QString::number(line), error.errorString())};
    }
    if (!document.isObject())
        throw Damage{tr("the file must hold one object in braces")};
    return settingsIn(document.object());
}

} // namespace

QString ProfileFile::standardPath()
{
    return UserSettings::path(QStringLiteral("profiles.json"));
}

ProfileSettings ProfileFile::shipped()
{
    const auto named = [](const char* name) { return QStringLiteral("SpxDefaults/") + QLatin1String(name); };
    const QString selector = named("Profile Selector");
    const ExtensionChoice defaults{false, {named("*")}};
    ProfileSettings settings;
    settings.profiles = {
        everything(),
        {QStringLiteral("Edit"),
         {true, {}},
         {false, {selector, named("Field Editor"), named("Node Editor")}}},
        {QStringLiteral("Measure"), {false, {}}, {false, {selector, named("PerfCounter"), named("Console")}}},
        {QStringLiteral("Classic"), defaults, defaults},
    };
    settings.active = HostProfile::defaultName();
    settings.offered = later();
    return settings;
}

void ProfileFile::offerNew(ProfileSettings& settings)
{
    for (const ProfileChoice& each : shipped().profiles) {
        const bool isNew = later().contains(each.name) && !settings.offered.contains(each.name);
        if (isNew && nameProblem(each.name, settings.profiles).isEmpty())
            settings.profiles.push_back(each);
    }
    settings.offered = later();
}

ProfileSettings ProfileFile::read(QString& error) const
{
    ProfileSettings settings = shipped();
    if (!readPresent(settings, error) && !error.isEmpty())
        error = tr("%1, and the shipped profiles are used.").arg(error);
    return settings;
}

// False, and perhaps why, where the settings stay as they are.
bool ProfileFile::readPresent(ProfileSettings& settings, QString& error) const
{
    if (!QFileInfo::exists(m_path))
        return false;
    QByteArray text;
    const QFileInfo file(m_path);
    const bool isTooLarge = file.isFile() && file.size() > LargestFile;
    const QString reason = isTooLarge ? QString() : readFile(m_path, LargestFile, text);
    if (!reason.isEmpty()) {
        error = tr("The profiles file “%1” cannot be read: %2").arg(m_path, reason);
        return false;
    }
    try {
        if (isTooLarge)
            throw Damage{tr("it is larger than any profiles file can be")};
        settings = parse(text);
        return true;
    } catch (const Damage& damage) {
        error = tr("The profiles file “%1” is damaged: %2; %3").arg(m_path, damage.text, setAside());
        return false;
    }
}

QString ProfileFile::change(ProfileSettings& settings, const std::function<void(ProfileSettings&)>& act) const
{
    const SettingsLock lock(m_path);
    QString error;
    if (lock.reasonAgainst().isEmpty())
        readPresent(settings, error);
    act(settings);
    if (!lock.reasonAgainst().isEmpty())
        return cannotWrite(lock.reasonAgainst());
    // What could not be read must not be written over; a damaged file has been kept under another name.
    return error.isEmpty() || !QFileInfo::exists(m_path) ? write(settings) : error + QLatin1Char('.');
}

QString ProfileFile::cannotWrite(const QString& reason) const
{
    return tr("The profiles file “%1” cannot be written: %2.").arg(m_path, reason);
}

QString ProfileFile::setAside() const
{
    const QFileInfo info(m_path);
    for (int number = 1; number < 1000; ++number) {
        const QString suffix = number == 1 ? QString() : QStringLiteral("-%1").arg(number);
        const QString name = info.completeBaseName() + QStringLiteral(".damaged") + suffix +
                             QStringLiteral(".") + info.suffix();
        const QString path = info.dir().filePath(name);
        if (!QFile::exists(path) && QFile::rename(m_path, path))
            return tr("it was kept as “%1”").arg(path);
    }
    return tr("it could not be renamed");
}

QString ProfileFile::write(const ProfileSettings& settings) const
{
    QJsonArray profiles;
    for (const ProfileChoice& profile : settings.profiles)
        profiles.append(toJson(profile));
    const QJsonObject root{{QStringLiteral("active"), settings.active},
                           {QStringLiteral("profiles"), profiles},
                           {Offered, QJsonArray::fromStringList(later())}};
    QDir().mkpath(QFileInfo(m_path).path());
    const QString reason = replaceFile(m_path, QJsonDocument(root).toJson());
    return reason.isEmpty() ? QString() : cannotWrite(reason);
}

QString ProfileFile::nameProblem(const QString& name, const std::vector<ProfileChoice>& others)
{
    if (name.trimmed().isEmpty())
        return tr("a profile needs a name");
    if (name != QString::fromLatin1(name.toLatin1()))
        return tr("the name “%1” has letters that a profile's name cannot have (Latin-1 only)").arg(name);
    const auto same = [&name](const ProfileChoice& other) { return other.name == name; };
    if (std::any_of(others.begin(), others.end(), same))
        return tr("there already is a profile named “%1”").arg(name);
    return {};
}

} // namespace scopix
