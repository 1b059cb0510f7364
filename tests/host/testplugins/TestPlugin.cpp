// SPDX-License-Identifier: MIT
// A plug-in for the tests of the host. It writes down what the host asks of it, in the application's property
// "pluginLog". Variants, chosen by a definition, break the contract each in its own way.
#include <scopix/SpxEditor.h>
#include <scopix/SpxPlugin.h>
#include <scopix/SpxPluginNote.h>
#include <scopix/SpxServices.h>
#include <scopix/SpxShell.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QTimer>
#include <QToolBar>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#if defined TEST_PLUGIN_Good
SPX_PLUGIN_NOTE("Test", "1.2.3")
#elif defined TEST_PLUGIN_OtherContract
SPX_PLUGIN_NOTE_OF("contract=9.0\nqt=" QT_VERSION_STR "\ncxx=" SPX_CXX_LIBRARY "\n")
#endif
// The other variants have no note.

namespace
{

// Seen by a host that lets code of the library run, before it asks for anything.
[[maybe_unused]] const int s_trace = setenv("TEST_PLUGIN_RAN", "1", 1);

#if defined TEST_PLUGIN_InitThrows
int throwFromInitialiser()
{
    throw std::runtime_error("no luck from the start");
}
[[maybe_unused]] const int s_thrown = throwFromInitialiser();
#elif defined TEST_PLUGIN_InitCrashes
[[maybe_unused]] const int s_crash = std::raise(SIGSEGV);
#endif

void write(const QString& entry)
{
    QStringList log = qApp->property("pluginLog").toStringList();
    log += entry;
    qApp->setProperty("pluginLog", log);
}

class Tool : public SpxExtension
{
public:
    explicit Tool(const char* name) { setName(name); }
    void load() override
    {
        note("load");
        m_dock = new QDockWidget;
        m_dock->setWindowTitle(text());
        m_dock->setWidget(new QLabel(text()));
        m_bar = new QToolBar(text());
    }
    void activate() override
    {
        SpxExtension::activate();
        note("activate");
        SpxShell::getInstance()->addDockWidget(m_dock, Qt::RightDockWidgetArea);
        SpxShell::getInstance()->addToolBar(m_bar, Qt::TopToolBarArea);
        SpxShell::getInstance()->attachExtension(this, true);
        m_selection = connect(SpxServices::getInstance(), &SpxServices::selectedNodeChanged, this,
                              [this] { note("selected"); });
        show();
    }
    void deactivate() override
    {
        SpxExtension::deactivate();
        note("deactivate");
        disconnect(m_selection);
        SpxShell::getInstance()->removeDockWidget(m_dock);
        SpxShell::getInstance()->removeToolBar(m_bar);
        SpxShell::getInstance()->detachExtension(this);
    }
    void show() override
    {
        SpxExtension::show();
        note("show");
        m_dock->show();
    }
    void hide() override
    {
        SpxExtension::hide();
        note("hide");
        m_dock->hide();
    }
    void unload() override
    {
        note("unload");
        // Left to the event loop on purpose: the host delivers it before the code is unloaded.
        m_dock->deleteLater();
        delete m_bar;
    }

private:
    QString text() const { return QString::fromUtf8(getName().getString()); }
    void note(const char* act) const { write(text() + QLatin1Char(' ') + QLatin1String(act)); }

    QDockWidget* m_dock = nullptr;
    QToolBar* m_bar = nullptr;
    QMetaObject::Connection m_selection;
};

class Editor : public SpxEditor
{
public:
    Editor() { setName("Editor"); }
    void load() override { write("Editor load"); }
    void activate() override { write("Editor activate"); }
    void unload() override { write("Editor unload"); }
};

class Throwing : public Tool
{
public:
    Throwing(const char* name, const char* in)
        : Tool(name)
        , m_in(in)
    {
    }
    void load() override
    {
        maybeThrow("load"); // before anything is made that nobody would free
        Tool::load();
    }
    void activate() override
    {
        Tool::activate();
        maybeThrow("activate");
    }
    void deactivate() override { maybeThrow("deactivate"); }
    void hide() override
    {
        Tool::hide();
        maybeThrow("hide");
    }
    void unload() override
    {
        Tool::unload();
        maybeThrow("unload");
    }

private:
    void maybeThrow(const char* here) const
    {
        if (m_in == here)
            throw std::runtime_error("broken in " + m_in);
    }
    std::string m_in;
};

class Plugin : public SpxPlugin
{
public:
    Plugin()
    {
#ifdef TEST_PLUGIN_Other
        setName("Other");
#else
        setName("Test");
#endif
    }
    ~Plugin() override
    {
        write(QString::fromUtf8(getName().getString()) + " destroyed");
    }
    bool load() override
    {
#if defined TEST_PLUGIN_LoadFalse
        return false;
#elif defined TEST_PLUGIN_LoadThrows
        throw std::runtime_error("no licence");
#elif defined TEST_PLUGIN_LoadCrashes
        std::raise(SIGSEGV);
#elif defined TEST_PLUGIN_CrashesLater
        QTimer::singleShot(0, qApp, [] { std::raise(SIGSEGV); });
#elif defined TEST_PLUGIN_BadExtensions
        addExtension(&m_inLoad);
        addExtension(&m_inActivate);
        addExtension(&m_inDeactivate);
        addExtension(&m_inHide);
        addExtension(&m_inUnload);
#elif defined TEST_PLUGIN_Other
        addExtension(&m_third);
#else
        addExtension(&m_first);
        addExtension(&m_editor);
        addExtension(&m_second);
#endif
        return SpxPlugin::load();
    }
    void unload() override
    {
        SpxPlugin::unload();
#if defined TEST_PLUGIN_UnloadThrows
        throw std::runtime_error("not leaving");
#endif
    }

private:
    Tool m_first{"First"};
    Tool m_second{"Second"};
    Tool m_third{"Third"};
    Editor m_editor;
    Throwing m_inLoad{"InLoad", "load"};
    Throwing m_inActivate{"InActivate", "activate"};
    Throwing m_inDeactivate{"InDeactivate", "deactivate"};
    Throwing m_inHide{"InHide", "hide"};
    Throwing m_inUnload{"InUnload", "unload"};
};

Plugin* s_plugin = nullptr;

} // namespace

#define ENTRY extern "C" __attribute__((visibility("default")))

#if !defined TEST_PLUGIN_NoEntry
ENTRY SpxPlugin* loadPlugin();
SpxPlugin* loadPlugin()
{
#if defined TEST_PLUGIN_Throws
    throw std::runtime_error("out of luck");
#elif defined TEST_PLUGIN_ThrowsNothing
    throw 7;
#elif defined TEST_PLUGIN_Endless
    for (volatile bool again = true; again;) {
    }
#elif defined TEST_PLUGIN_Ends
    std::_Exit(0);
#elif defined TEST_PLUGIN_Crashes
    std::raise(SIGSEGV);
#elif !defined TEST_PLUGIN_Null
    s_plugin = new Plugin;
#endif
    return s_plugin;
}
#endif

#if !defined TEST_PLUGIN_NoUnload
ENTRY void unloadPlugin();
void unloadPlugin()
{
    delete s_plugin;
    s_plugin = nullptr;
#if defined TEST_PLUGIN_UnloadThrows
    throw std::runtime_error("not going");
#endif
}
#endif
