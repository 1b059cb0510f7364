// SPDX-License-Identifier: MIT
#include "settings/SettingsFile.h"

#include "settings/SettingsLock.h"
#include "support/InputFile.h"
#include "support/OutputFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryFile>

#include <optional>

namespace scopix
{

namespace
{

constexpr qint64 LargestFile = 1 << 20;

QString tr(const char* text)
{
    return QCoreApplication::translate("SettingsFile", text);
}

/// The settings in a text. QSettings reads and writes files only, and waits for the locks of other programs:
/// so it works on a private file.
class IniText
{
public:
    /// To be read only.
    explicit IniText(const QByteArray& text)
    {
        load(text);
        m_file.remove(); // QSettings has read it
    }
    /// To be changed, in a file with a name like this.
    IniText(const QByteArray& text, const QString& nameTemplate)
        : m_file(nameTemplate)
    {
        load(text);
    }
    // Lines that are no settings are left out.
    bool isGood() const { return m_settings && m_settings->status() != QSettings::AccessError && m_isLoaded; }
    QSettings& settings() { return *m_settings; }
    bool getText(QByteArray& text)
    {
        m_settings->sync();
        return isGood() && readFile(m_file.fileName(), LargestFile, text).isEmpty() && isWhole(text);
    }

private:
    void load(const QByteArray& text)
    {
        if (!m_file.open() || m_file.write(text) != text.size() || !m_file.flush())
            return;
        m_settings.emplace(m_file.fileName(), QSettings::IniFormat);
        // A failure to read goes unnoticed by QSettings too.
        m_isLoaded = !text.contains('=') || !m_settings->allKeys().isEmpty();
    }
    // A full disk goes unnoticed by QSettings, which leaves an empty file or half of one then.
    bool isWhole(const QByteArray& text) const
    {
        const int settings = m_settings->allKeys().size();
        return settings == 0 || (text.endsWith('\n') && text.count('=') >= settings);
    }

    QTemporaryFile m_file;
    std::optional<QSettings> m_settings;
    bool m_isLoaded = false;
};

const QString& privateSuffix()
{
    static const QString suffix = QStringLiteral(".scopix-");
    return suffix;
}

// What programs left that were killed while they changed the settings; whoever holds the lock is alone with
// them.
void removeLeftovers(const QString& path)
{
    QDir folder = QFileInfo(path).dir();
    for (const QString& name :
         folder.entryList({QFileInfo(path).fileName() + privateSuffix() + QLatin1Char('*')}, QDir::Files))
        folder.remove(name);
}

// A file that is not there holds no settings.
QString readText(const QString& path, QByteArray& text)
{
    return QFileInfo::exists(path) ? readFile(path, LargestFile, text) : QString();
}

} // namespace

SettingsFile::SettingsFile(QString path)
    : m_path(std::move(path))
{
}

QVariant SettingsFile::value(const QString& key) const
{
    QByteArray text;
    if (!readText(m_path, text).isEmpty())
        return {};
    IniText ini(text);
    return ini.isGood() ? ini.settings().value(key) : QVariant();
}

QVariantMap SettingsFile::valuesIn(const QString& group) const
{
    QByteArray text;
    QVariantMap values;
    if (!readText(m_path, text).isEmpty())
        return values;
    IniText ini(text);
    if (!ini.isGood())
        return values;
    ini.settings().beginGroup(group);
    for (const QString& key : ini.settings().childKeys())
        values.insert(key, ini.settings().value(key));
    return values;
}

QString SettingsFile::setValue(const QString& key, const QVariant& value) const
{
    return change([&](QSettings& settings) { settings.setValue(key, value); });
}

QString SettingsFile::change(const std::function<void(QSettings&)>& act) const
{
    const QString reason = tryToChange(act);
    return reason.isEmpty() ? QString()
                            : tr("The settings file “%1” cannot be changed: %2.").arg(m_path, reason);
}

QString SettingsFile::tryToChange(const std::function<void(QSettings&)>& act) const
{
    const SettingsLock lock(m_path);
    if (!lock.reasonAgainst().isEmpty())
        return lock.reasonAgainst();
    QByteArray before;
    const QString reason = readText(m_path, before);
    if (!reason.isEmpty())
        return reason;
    removeLeftovers(m_path);
    IniText ini(before, m_path + privateSuffix() + QStringLiteral("XXXXXX"));
    if (ini.isGood())
        act(ini.settings());
    QByteArray after;
    if (!ini.isGood() || !ini.getText(after))
        return tr("no temporary file can be written");
    return after == before ? QString() : replaceFile(m_path, after);
}

} // namespace scopix
