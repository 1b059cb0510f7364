// SPDX-License-Identifier: MIT
// Works in the program without a pause, as the environment's SCOPIX_TORTURE says: "save" edits the selected
// field and saves, over and over; "once" does it one time and closes the window; "edit" edits only;
// "profiles" chooses one profile after the other.
#include "support/SetText.h"

#include <scopix/SpxPlugin.h>
#include <scopix/SpxPluginsManager.h>
#include <scopix/SpxServices.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

namespace
{

QMainWindow* mainWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<QMainWindow*>(widget))
            return window;
    }
    return nullptr;
}

class Plugin : public SpxPlugin
{
public:
    Plugin() { setName("Torture"); }
    bool load() override
    {
        m_act = qgetenv("SCOPIX_TORTURE");
        QObject::connect(SpxServices::getInstance(), &SpxServices::selectedFieldChanged, &m_timer,
                         [this](SoField* field) { m_field = field; });
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { work(); });
        m_timer.start(1);
        return SpxPlugin::load();
    }

private:
    void work()
    {
        if (QApplication::activeModalWidget())
            QApplication::activeModalWidget()->close();
        if (m_act == "profiles")
            return chooseProfile();
        if (!m_field)
            return;
        edit();
        if (m_act != "edit")
            save();
        if (m_act == "once")
            mainWindow()->close();
    }
    void edit()
    {
        m_value = (m_value + 1) % 8;
        const QByteArray text = QByteArray::number(m_value / 8.0);
        SpxServices::getInstance()->executeCommand(new SetText(m_field, text.constData()));
    }
    static void save()
    {
        for (QAction* action : mainWindow()->findChildren<QAction*>()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Save))
                action->trigger();
        }
    }
    static void chooseProfile()
    {
        SpxPluginsManager* manager = SpxPluginsManager::getInstance();
        const QList<SpxProfile*> profiles = manager->getProfilesList();
        const int next = profiles.indexOf(manager->getActiveProfile()) + 1;
        manager->setActiveProfile(profiles.value(next < profiles.size() ? next : 0));
    }

    QByteArray m_act;
    QTimer m_timer;
    SoField* m_field = nullptr;
    int m_value = 0;
};

Plugin* s_plugin = nullptr;

} // namespace

#define ENTRY extern "C" __attribute__((visibility("default")))

ENTRY SpxPlugin* loadPlugin();
SpxPlugin* loadPlugin()
{
    s_plugin = new Plugin;
    return s_plugin;
}

ENTRY void unloadPlugin();
void unloadPlugin()
{
    delete s_plugin;
    s_plugin = nullptr;
}
