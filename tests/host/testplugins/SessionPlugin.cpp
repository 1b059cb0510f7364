// SPDX-License-Identifier: MIT
// A plug-in that acts in the program as a user does, as the environment's SCOPIX_TEST_ACT says: "edit" sets
// the selected field to 0.5; "count" sets it to 1, 2, 3, … and prints each once it is set; "logout" edits,
// has the session end and dies; "recover" answers the question after a crash, saves and closes the window.
#include "support/SetText.h"

#include <scopix/SpxPlugin.h>
#include <scopix/SpxServices.h>
#include <xsg/core/SoField.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QTimer>

#include <csignal>
#include <string>
#include <unistd.h>

namespace
{

class Plugin : public SpxPlugin
{
public:
    Plugin() { setName("Session"); }
    bool load() override
    {
        const QByteArray act = qgetenv("SCOPIX_TEST_ACT");
        if (act == "edit" || act == "logout")
            QObject::connect(SpxServices::getInstance(), &SpxServices::selectedFieldChanged, &m_timer, edit);
        if (act == "logout") {
            QObject::connect(&m_timer, &QTimer::timeout, logout);
            m_timer.start(10);
        }
        if (act == "count") {
            QObject::connect(SpxServices::getInstance(), &SpxServices::selectedFieldChanged, &m_timer,
                             [this](SoField* field) { m_counted = field; });
            QObject::connect(&m_timer, &QTimer::timeout, [this] { count(); });
            m_timer.start(5);
        }
        if (act == "recover") {
            QObject::connect(&m_timer, &QTimer::timeout, recover);
            m_timer.start(10);
        }
        return SpxPlugin::load();
    }

private:
    static void edit(SoField* field)
    {
        if (field)
            SpxServices::getInstance()->executeCommand(new SetText(field, "0.5"));
    }
    // As the session manager does it. The edits must then be on the disk, and not by chance.
    static void logout()
    {
        const QString kept = qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/scopix/recovery");
        const bool wereKept = QFileInfo::exists(kept);
        alignas(16) char noManager[64] = {};
        emit qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(noManager));
        if (QFileInfo::exists(kept))
            std::raise(wereKept ? SIGABRT : SIGKILL);
    }
    void count()
    {
        if (!m_counted)
            return;
        const std::string text = std::to_string(++m_count);
        SpxServices::getInstance()->executeCommand(new SetText(m_counted, text.c_str()));
        QFile out;
        out.open(m_out, QIODevice::WriteOnly);
        out.write(text.c_str());
        out.write("\n");
    }
    static void recover()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box->objectName() != QLatin1String("recovery"))
            return;
        QWidget* window = box->parentWidget();
        QTimer::singleShot(0, window, [window] { saveAndClose(*window); });
        for (QAbstractButton* button : box->buttons()) {
            if (box->buttonRole(button) == QMessageBox::AcceptRole)
                return button->click();
        }
    }
    static void saveAndClose(QWidget& window)
    {
        for (QAction* action : window.findChildren<QAction*>()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Save))
                action->trigger();
        }
        window.close();
    }

    QTimer m_timer;
    SoField* m_counted = nullptr;
    int m_count = 0;
    const int m_out = dup(STDOUT_FILENO); // which the console redirects later
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
