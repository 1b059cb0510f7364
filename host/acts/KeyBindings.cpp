// SPDX-License-Identifier: MIT
#include "acts/KeyBindings.h"

#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"

#include <QAction>
#include <QSettings>

#include <algorithm>

namespace scopix
{

namespace
{

QString group()
{
    return QStringLiteral("keys");
}

struct PresetKey {
    const char* preset;
    const char* shipped; // the key that the act has as shipped
    const char* key;
};

constexpr PresetKey PresetKeys[] = {
    {"Blender", "W", "G"},
    {"Blender", "E", "R"},
    {"Blender", "R", "S"},
    {"Blender", "F", "."},
    {"Blender", "Ctrl+0", "Home"},
    {"Blender", "Del", "X"},
    {"Blender", "Ctrl+D", "Shift+D"},
    {"Blender", "Ctrl+K", "F3"},
    {"Blender", "F3", "Shift+Z"},
    {"Godot", "Ctrl+D", "Ctrl+D"},
    {"Godot", "Ctrl+K", "Ctrl+Shift+P"},
    {"Godot", "M", "Shift+M"},
    {"Maya", "Ctrl+0", "Shift+A"},
    {"Maya", "Shift+A", "Ctrl+Shift+A"},
    {"Maya", "F3", "4"},
};

} // namespace

KeyBindings::KeyBindings(QMenuBar& bar)
    : m_bar(bar)
{
}

// What no translation changes: its name, or the key that it comes with; its text only where it has neither.
QString KeyBindings::idOf(const QAction& act) const
{
    const auto known = m_ids.find(&act);
    if (known != m_ids.end())
        return *known;
    if (!act.objectName().isEmpty())
        return act.objectName();
    return act.shortcut().isEmpty() ? plainText(act.text())
                                    : act.shortcut().toString(QKeySequence::PortableText);
}

void KeyBindings::meet(const QAction& act)
{
    if (m_ids.contains(&act))
        return;
    const QString id = idOf(act);
    m_ids.insert(&act, id);
    m_shipped.insert(id, act.shortcuts());
    connect(&act, &QObject::destroyed, this, [this, address = &act] { m_ids.remove(address); });
}

std::vector<MenuAct> KeyBindings::acts() const
{
    std::vector<MenuAct> acts = findActs(m_bar);
    acts.erase(std::remove_if(acts.begin(), acts.end(),
                              [this](const MenuAct& each) { return !m_ids.contains(each.action); }),
               acts.end());
    return acts;
}

void KeyBindings::restore()
{
    const QVariantMap kept = SettingsFile(UserSettings::windowFile()).valuesIn(group());
    for (const MenuAct& act : findActs(m_bar)) {
        const bool isNew = !m_ids.contains(act.action);
        meet(*act.action);
        const auto key = kept.find(QString::fromLatin1(idOf(*act.action).toUtf8().toHex()));
        if (isNew && key != kept.end())
            act.action->setShortcut(QKeySequence(key->toString(), QKeySequence::PortableText));
    }
}

QAction* KeyBindings::rival(const QAction& act, const QKeySequence& key) const
{
    for (const MenuAct& each : acts())
        if (each.action != &act && !key.isEmpty() && each.action->shortcuts().contains(key))
            return each.action;
    return nullptr;
}

QString KeyBindings::set(QAction& act, const QKeySequence& key)
{
    meet(act);
    if (QAction* other = rival(act, key))
        other->setShortcut({});
    act.setShortcut(key);
    return keep();
}

QString KeyBindings::reset(QAction& act)
{
    act.setShortcuts(m_shipped.value(idOf(act)));
    return keep();
}

QString KeyBindings::resetAll()
{
    return usePreset({});
}

bool KeyBindings::isShipped(const QAction& act) const
{
    return act.shortcuts() == m_shipped.value(idOf(act));
}

QStringList KeyBindings::presets()
{
    return {QStringLiteral("Scopix"), QStringLiteral("Blender"), QStringLiteral("Godot"),
            QStringLiteral("Maya")};
}

QString KeyBindings::usePreset(const QString& preset)
{
    const std::vector<MenuAct> all = acts();
    for (const MenuAct& act : all)
        act.action->setShortcuts(m_shipped.value(idOf(*act.action)));
    for (const MenuAct& act : all) {
        const QString shipped =
            m_shipped.value(idOf(*act.action)).value(0).toString(QKeySequence::PortableText);
        for (const PresetKey& each : PresetKeys)
            if (preset == QLatin1String(each.preset) && shipped == QLatin1String(each.shipped))
                act.action->setShortcut(QKeySequence(QLatin1String(each.key), QKeySequence::PortableText));
    }
    return keep();
}

QString KeyBindings::keep() const
{
    return SettingsFile(UserSettings::windowFile()).change([this](QSettings& settings) {
        settings.remove(group());
        settings.beginGroup(group());
        // In hexadecimal: a name may hold signs that mean something in a key of settings.
        for (const MenuAct& act : acts())
            if (!isShipped(*act.action))
                settings.setValue(QString::fromLatin1(idOf(*act.action).toUtf8().toHex()),
                                  act.action->shortcut().toString(QKeySequence::PortableText));
        settings.endGroup();
    });
}

} // namespace scopix
