// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

#include <functional>

class QSettings;

namespace scopix
{

/// Settings in an INI file that the user's sessions share: each change is made to what the file holds by
/// then, so that sessions keep what others have changed. GUI thread only.
class SettingsFile
{
public:
    explicit SettingsFile(QString path);

    /// As the file says now; invalid where it does not say, or cannot be read.
    QVariant value(const QString& key) const;
    /// All values of one group, by their keys in it.
    QVariantMap valuesIn(const QString& group) const;
    /// Reads the file again, lets `act` change the settings, and writes them. One sentence where that cannot
    /// be done, and the file is as it was; else an empty text.
    QString change(const std::function<void(QSettings&)>& act) const;
    QString setValue(const QString& key, const QVariant& value) const;

private:
    QString tryToChange(const std::function<void(QSettings&)>& act) const;

    QString m_path;
};

} // namespace scopix
