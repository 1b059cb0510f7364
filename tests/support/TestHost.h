// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditor.h>
#include <scopix/SpxPluginsManager.h>
#include <scopix/SpxServices.h>
#include <scopix/SpxShell.h>

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class SoField;
class SoFieldContainer;

/// A host for tests: keeps the whole contract, and writes down every call that an extension makes, in order.
///
///     TestHost host;
///     EdSFFloatWidget editor(nullptr);
///     SoSFFloat field;
///     host.edit(editor, &field);                        // loaded, given the field, activated
///     ... keys and mouse events ...
///     host.undo();
///     host.pump();                                      // sensors and everything posted have run
///     EXPECT_EQ(host.takeLog(), (TestHost::Log{"executeCommand SpxSFSetValueCommand"}));
///
/// Docks and tool bars go into window(), which is not shown until a test shows it. One host at a time; GUI
/// thread only.
class TestHost : public SpxServices, public SpxShell, public SpxPluginsManager
{
public:
    using Log = std::vector<std::string>;

    TestHost();
    ~TestHost() override;

    /// The calls so far: "executeCommand SpxSFSetValueCommand", "addDockWidget \"Field Editor\" 2",
    /// "attachExtension \"Field Editor\" true", "setActiveProfile Default", ...
    const Log& log() const { return m_log; }
    Log takeLog();

    /// The person's choices. The same object may be selected again.
    void select(SoField* field);
    void select(SoFieldContainer* node);
    SoField* selectedField() const { return m_selectedField; }

    /// The undo list; one step for each command, nothing is grouped.
    bool undo();
    bool redo();
    int undoCount() const { return m_done; }
    int redoCount() const { return int(m_steps.size()) - m_done; }
    void clearUndo();

    /// Profiles. There is one named "Default" from the start, and it is active.
    SpxProfile* addProfile(const SbString& name);
    /// What every extension finds in its profile setting.
    void control(QList<SpxExtension*> extensions);

    /// Loads the extension if need be, and activates it.
    void start(SpxExtension& extension);
    /// Deactivates the extension if it is active, and unloads it.
    void stop(SpxExtension& extension);
    /// Lets the editor edit the object the way a dock does, but with its widget as a window of its own.
    void edit(SpxEditor& editor, SoTypedObject* object);
    /// Ends that.
    void release(SpxEditor& editor);

    QMainWindow& window() { return m_window; }

    /// Runs the event loop until no event and no sensor is waiting.
    static void pump();
    /// Runs the event loop until `condition` holds; false when it does not come true within a minute.
    static bool waitFor(const std::function<bool()>& condition);

    void executeCommand(SpxCommand* command) override;
    void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void attachExtension(SpxExtension* extension, bool attach) override;
    void detachExtension(SpxExtension* extension) override;
    void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) override;
    void removeToolBar(QToolBar* toolBar) override;
    QList<SpxProfile*> getProfilesList() const override;
    SpxProfile* getActiveProfile() const override { return m_activeProfile; }
    void setActiveProfile(SpxProfile* profile) override;
    const SpxProfileSetting* getProfileSetting(const SpxExtension* extension) const override;

private:
    struct Step {
        std::unique_ptr<SpxCommand> command;
        const SoFieldContainer* container; // of the field that was selected then; may be null
    };

    void note(std::string call) { m_log.push_back(std::move(call)); }
    static void dyingCB(void* host, SoFieldContainer* dying);
    void goesAway(const SoFieldContainer* container);
    bool isLoaded(const SpxExtension& extension) const;

    QMainWindow m_window;
    Log m_log;
    std::vector<Step> m_steps;
    int m_done = 0;
    SoField* m_selectedField = nullptr;
    SoFieldContainer* m_selectedNode = nullptr;
    std::vector<std::unique_ptr<SpxProfile>> m_profiles;
    SpxProfile* m_activeProfile = nullptr;
    SpxProfileSetting m_setting;
    std::vector<QPointer<SpxExtension>> m_loaded;
};
