// SPDX-License-Identifier: MIT
#include "window/SettingsActs.h"

#include "language/Languages.h"
#include "preferences/KeysPage.h"
#include "preferences/PluginsPage.h"
#include "preferences/PreferencesDialog.h"
#include "services/HostServices.h"
#include "settings/Preferences.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "support/UserNotifier.h"
#include "theme/Theme.h"
#include "viewport/SceneView.h"
#include "window/SceneFiles.h"

#include <scopix/SpxSettings.h>
#include <xsg/core/SoPreferences.h>

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <optional>

namespace scopix
{

namespace
{

constexpr int SmallestFont = 5; // stands for the system's
constexpr int LargestFont = 48;
constexpr int UsualPause = 3; // seconds
constexpr int LongestPause = 600;

QString fontKey()
{
    return QStringLiteral("fontSize");
}

QString mouseKey()
{
    return QStringLiteral("mouse");
}

QString pauseKey()
{
    return QStringLiteral("autosavePause");
}

QVariant kept(const QString& key, const QVariant& otherwise)
{
    const QVariant value = SettingsFile(UserSettings::windowFile()).value(key);
    return value.isValid() ? value : otherwise;
}

QString keep(const QString& key, const QVariant& value)
{
    return SettingsFile(UserSettings::windowFile()).setValue(key, value);
}

// A number that the scene graph's preferences hold.
Setting preference(const char* name, int usual, int lowest, int highest)
{
    Setting setting;
    setting.key = QString::fromLatin1(name);
    setting.kind = Setting::Kind::Number;
    setting.lowest = lowest;
    setting.highest = highest;
    setting.shipped = usual;
    setting.get = [name, usual] { return SoPreferences::getInt(name, usual); };
    setting.set = [name](const QVariant& value) {
        return Preferences::set(QString::fromLatin1(name), value.toString());
    };
    return setting;
}

std::optional<SpxSettings::Choice> findChoice(const QString& key)
{
    const SpxSettings* extensions = SpxSettings::getInstance();
    for (const SpxSettings::Choice& choice :
         extensions ? extensions->getChoices() : std::vector<SpxSettings::Choice>())
        if (choice.key == key)
            return choice;
    return {};
}

bool isDockToggle(const QMainWindow& window, const QAction* action)
{
    const auto docks = window.findChildren<QDockWidget*>();
    return std::any_of(docks.begin(), docks.end(),
                       [action](QDockWidget* dock) { return dock->toggleViewAction() == action; });
}

} // namespace

SettingsActs::SettingsActs(const Parts& parts, PluginStates plugins)
    : QObject(&parts.window)
    , m_parts(parts)
    , m_plugins(std::move(plugins))
    , m_action(new QAction(tr("Pre&ferences…"), this))
    , m_keys(new KeyBindings(*parts.window.menuBar()))
{
    m_keys->setParent(this);
    m_action->setObjectName(QStringLiteral("preferencesAction"));
    m_action->setShortcut(Qt::CTRL + Qt::Key_Comma);
    m_action->setMenuRole(QAction::PreferencesRole);
    connect(m_action, &QAction::triggered, this, [this] { open(); });
    restore();
}

void SettingsActs::restore()
{
    const int points = kept(fontKey(), SmallestFont).toInt();
    if (points > SmallestFont && points <= LargestFont)
        setFontSize(m_parts.window, points);
    m_parts.view.setMouseScheme(mouseSchemeFromName(kept(mouseKey(), {}).toString()));
    setAutosavePause(kept(pauseKey(), UsualPause).toInt());
}

void SettingsActs::restoreKeys()
{
    m_keys->restore();
}

Setting SettingsActs::theme() const
{
    Setting setting;
    setting.key = QStringLiteral("palette");
    setting.page = tr("Appearance");
    setting.label = tr("Colours");
    setting.kind = Setting::Kind::Choice;
    for (const QAction* each : m_parts.themes.actions())
        setting.choices.append({each->data().toString(), plainText(each->text())});
    setting.shipped = themeName(Theme::System);
    setting.get = [menu = &m_parts.themes]() -> QVariant {
        for (const QAction* each : menu->actions())
            if (each->isChecked())
                return each->data();
        return {};
    };
    setting.set = [menu = &m_parts.themes](const QVariant& name) {
        for (QAction* each : menu->actions())
            if (each->data() == name)
                each->trigger();
        return QString();
    };
    return setting;
}

Setting SettingsActs::fontSize() const
{
    Setting setting;
    setting.key = fontKey();
    setting.page = tr("Appearance");
    setting.label = tr("Size of texts");
    setting.kind = Setting::Kind::Number;
    setting.lowest = SmallestFont;
    setting.highest = LargestFont;
    setting.unit = tr(" pt");
    setting.atLowest = tr("As the system");
    setting.shipped = SmallestFont;
    setting.get = [] { return kept(fontKey(), SmallestFont); };
    setting.set = [window = &m_parts.window](const QVariant& points) {
        setFontSize(*window, points.toInt() == SmallestFont ? 0 : points.toInt());
        return keep(fontKey(), points);
    };
    return setting;
}

Setting SettingsActs::language() const
{
    Setting setting;
    setting.key = QStringLiteral("language");
    setting.page = tr("Appearance");
    setting.label = tr("Language");
    setting.help = tr("The texts of the default extensions are in English.");
    setting.kind = Setting::Kind::Choice;
    setting.choices.append({QString(), tr("As the system")});
    for (const QString& each : Languages::shipped())
        setting.choices.append({each, Languages::nameOf(each)});
    setting.shipped = QString();
    setting.get = [key = setting.key] { return kept(key, QString()); };
    setting.set = [key = setting.key](const QVariant& language) {
        Languages::instance()->speak(language.toString());
        return keep(key, language);
    };
    return setting;
}

Setting SettingsActs::mouse() const
{
    Setting setting;
    setting.key = mouseKey();
    setting.page = tr("3D View");
    setting.label = tr("Mouse as in");
    setting.help =
        tr("Which buttons turn, move and come nearer. The left button selects in each, and the wheel "
           "comes nearer.");
    setting.kind = Setting::Kind::Choice;
    setting.choices = {{QStringLiteral("scopix"), tr("Scopix: left turns, middle and right move")},
                       {QStringLiteral("blender"), tr("Blender: middle turns, Shift+middle moves")},
                       {QStringLiteral("godot"), tr("Godot: middle and right turn, Shift+middle moves")},
                       {QStringLiteral("maya"), tr("Maya: Alt and left, middle, right")}};
    setting.shipped = QStringLiteral("scopix");
    setting.get = [] { return kept(mouseKey(), QStringLiteral("scopix")); };
    setting.set = [view = &m_parts.view](const QVariant& name) {
        view->setMouseScheme(mouseSchemeFromName(name.toString()));
        return keep(mouseKey(), name);
    };
    return setting;
}

Setting SettingsActs::undoMemory() const
{
    Setting setting = preference("SCOPIX_UNDO_MEMORY", 256, 16, 65536);
    setting.page = tr("Memory and Files");
    setting.label = tr("Memory for undo");
    setting.help = tr("Older steps are dropped where they would need more.");
    setting.unit = tr(" MiB");
    setting.set = [services = &m_parts.services, set = setting.set](const QVariant& value) {
        const QString problem = set(value);
        services->history().setMemoryLimit(Preferences::undoMemory());
        return problem;
    };
    return setting;
}

Setting SettingsActs::pictureMemory() const
{
    Setting setting = preference("XSG_PICTURE_MEMORY", 512, 16, 65536);
    setting.page = tr("Memory and Files");
    setting.label = tr("Memory for the pictures of a scene");
    setting.help = tr("Pictures are brought down to fit; holds for what is opened from now on.");
    setting.unit = tr(" MiB");
    return setting;
}

Setting SettingsActs::creaseAngle() const
{
    Setting setting = preference("XSG_CREASE_ANGLE", 35, 0, 175);
    setting.page = tr("Memory and Files");
    setting.label = tr("Angle of edges");
    setting.help =
        tr("Faces of a model without normals have an edge between them above this angle; holds for "
           "what is opened from now on.");
    setting.unit = tr("°");
    return setting;
}

Setting SettingsActs::autosavePause() const
{
    Setting setting;
    setting.key = pauseKey();
    setting.page = tr("Memory and Files");
    setting.label = tr("Keep unsaved edits after a pause of");
    setting.help = tr("They are kept beside your settings, and offered again after a crash.");
    setting.kind = Setting::Kind::Number;
    setting.lowest = 1;
    setting.highest = LongestPause;
    setting.unit = tr(" s");
    setting.shipped = UsualPause;
    setting.get = [] { return kept(pauseKey(), UsualPause); };
    setting.set = [this](const QVariant& seconds) {
        setAutosavePause(seconds.toInt());
        return keep(pauseKey(), seconds);
    };
    return setting;
}

// A user who never pauses does not wait longer than that either.
void SettingsActs::setAutosavePause(int seconds) const
{
    constexpr int Second = 1000;
    constexpr int WithoutPause = 2;
    const int pause = std::clamp(seconds, 1, LongestPause);
    m_parts.files.getScenes().setPause(pause * Second, (pause + WithoutPause) * Second);
}

// What the View menu switches on and off, extensions' entries included.
void SettingsActs::addToggles(std::vector<Setting>& settings) const
{
    const std::vector<MenuAct> acts = findActs(*m_parts.window.menuBar());
    const QMenu* view = qobject_cast<QMenu*>(m_parts.themes.parent());
    for (const MenuAct& act : acts) {
        const bool isOfView = view && view->actions().contains(act.action);
        // What comes with a single key is switched on for a while, such as measuring.
        const bool isForAWhile = act.action->shortcut().count() == 1 && m_keys->isShipped(*act.action);
        const bool isKept = act.action->isCheckable() && !act.action->actionGroup();
        if (!isOfView || !isKept || isForAWhile || isDockToggle(m_parts.window, act.action))
            continue;
        Setting setting;
        setting.key = act.action->objectName().isEmpty() ? act.text : act.action->objectName();
        setting.page = tr("3D View");
        setting.label = act.text;
        setting.kind = Setting::Kind::Switch;
        setting.get = [action = act.action] { return action->isChecked(); };
        setting.set = [action = QPointer<QAction>(act.action)](const QVariant& on) {
            if (action && action->isChecked() != on.toBool())
                action->trigger();
            return QString();
        };
        setting.shipped = act.action->isChecked();
        settings.push_back(setting);
    }
}

// By key, since an extension may be unloaded while the dialog is open.
void SettingsActs::addOfExtensions(std::vector<Setting>& settings)
{
    const SpxSettings* extensions = SpxSettings::getInstance();
    for (const SpxSettings::Choice& choice :
         extensions ? extensions->getChoices() : std::vector<SpxSettings::Choice>()) {
        Setting setting;
        setting.key = choice.key;
        setting.page = choice.page;
        setting.label = choice.label;
        setting.help = choice.help;
        setting.kind = Setting::Kind::Choice;
        setting.choices = choice.choices;
        setting.shipped = choice.shipped;
        setting.get = [key = choice.key]() -> QVariant {
            const auto known = findChoice(key);
            return known ? known->get() : QString();
        };
        setting.set = [key = choice.key](const QVariant& value) {
            if (const auto known = findChoice(key))
                known->set(value.toString());
            return QString();
        };
        settings.push_back(setting);
    }
}

std::vector<Setting> SettingsActs::settings() const
{
    std::vector<Setting> all{theme(),         fontSize(),    mouse(),        undoMemory(),
                             pictureMemory(), creaseAngle(), autosavePause()};
    if (Languages::instance())
        all.insert(all.begin() + 2, language());
    addToggles(all);
    addOfExtensions(all);
    return all;
}

void SettingsActs::open(const QString& setting)
{
    delete m_dialog;
    m_dialog = new PreferencesDialog(settings(), &m_parts.window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* keys = new KeysPage(*m_keys, m_dialog);
    m_dialog->addPage(tr("Keys"), keys, tr("keyboard shortcuts presets Blender Godot Maya"));
    m_dialog->addPage(tr("Plug-ins"), new PluginsPage(m_plugins(), m_dialog),
                      tr("extensions tools loaded refused"));
    connect(m_dialog, &PreferencesDialog::failed, &m_parts.notifier, &UserNotifier::error);
    connect(keys, &KeysPage::failed, &m_parts.notifier, &UserNotifier::error);
    m_dialog->show();
    m_dialog->showSetting(setting);
}

} // namespace scopix
