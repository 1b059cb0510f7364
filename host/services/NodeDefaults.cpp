// SPDX-License-Identifier: MIT
#include "services/NodeDefaults.h"

#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "text/NodeText.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>

#include <QCoreApplication>
#include <QSettings>

namespace scopix
{

namespace
{

constexpr int LongestText = 16 << 10;

QString tr(const char* text)
{
    return QCoreApplication::translate("NodeDefaults", text);
}

SettingsFile file()
{
    return SettingsFile(UserSettings::path(QStringLiteral("node-defaults.ini")));
}

QString keyOf(const SoField& field)
{
    return toQString(field.getContainer()->getTypeId().getName()) + QLatin1Char('/') +
           toQString(field.getName());
}

// As UTF-8, whatever a string holds.
QString textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return QString::fromUtf8(text.getString());
}

} // namespace

bool canHaveUserDefault(const SoField& field)
{
    return field.getContainer() && !dynamic_cast<const SoSFNode*>(&field) &&
           !dynamic_cast<const SoMFNode*>(&field);
}

bool hasUserDefault(const SoField& field)
{
    return canHaveUserDefault(field) && file().value(keyOf(field)).isValid();
}

QString setUserDefault(const SoField& field)
{
    if (!canHaveUserDefault(field))
        return tr("“%1” cannot be kept as a default: new nodes have no other nodes of the scene in their "
                  "fields.")
            .arg(toQString(field.getName()));
    if (field.isDefault())
        return clearUserDefault(field);
    const QString text = textOf(field);
    if (text.size() > LongestText)
        return tr("The value of “%1” cannot be kept as a default: its text is longer than %2 characters.")
            .arg(toQString(field.getName()))
            .arg(LongestText);
    return file().setValue(keyOf(field), text);
}

QString clearUserDefault(const SoField& field)
{
    if (!hasUserDefault(field))
        return {};
    return file().change([&](QSettings& settings) { settings.remove(keyOf(field)); });
}

void applyUserDefaults(SoFieldContainer& node)
{
    const QVariantMap values = file().valuesIn(toQString(node.getTypeId().getName()));
    for (auto value = values.begin(); value != values.end(); ++value) {
        SoField* field = node.getField(toName(value.key()));
        if (field && canHaveUserDefault(*field))
            field->set(SbString(value->toString().toStdString()));
    }
}

} // namespace scopix
