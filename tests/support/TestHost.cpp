// SPDX-License-Identifier: MIT
#include "TestHost.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QCoreApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QThread>
#include <QToolBar>

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <typeinfo>
#include <utility>

namespace
{

std::string classOf(const SpxCommand& command)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(typeid(command).name(), nullptr, nullptr, &status), std::free);
    return name ? name.get() : typeid(command).name();
}

std::string quoted(const QWidget& widget)
{
    return '"' + widget.windowTitle().toStdString() + '"';
}

std::string quoted(const SpxExtension& extension)
{
    return '"' + extension.getName().str() + '"';
}

} // namespace

TestHost::TestHost()
{
    m_activeProfile = addProfile("Default");
    SoSensorQueue::getInstance().setWakeUp(
        [](void* host) {
            const auto process = [] { SoSensorQueue::getInstance().process(); };
            QMetaObject::invokeMethod(static_cast<TestHost*>(host), process, Qt::QueuedConnection);
        },
        this);
    SoFieldContainer::addDyingCallback(dyingCB, this);
}

TestHost::~TestHost()
{
    SoFieldContainer::removeDyingCallback(dyingCB, this);
    while (!m_loaded.empty()) {
        const QPointer<SpxExtension> last = m_loaded.back();
        m_loaded.pop_back();
        if (!last)
            continue;
        if (last->isActive())
            last->deactivate();
        last->unload();
    }
    SoSensorQueue::getInstance().setWakeUp(nullptr, nullptr);
}

TestHost::Log TestHost::takeLog()
{
    return std::exchange(m_log, {});
}

void TestHost::select(SoField* field)
{
    m_selectedField = field;
    emit selectedFieldChanged(field);
}

void TestHost::select(SoFieldContainer* node)
{
    m_selectedNode = node;
    emit selectedNodeChanged(node);
}

void TestHost::executeCommand(SpxCommand* command)
{
    note("executeCommand " + classOf(*command));
    m_steps.resize(std::size_t(m_done));
    const SoFieldContainer* container = m_selectedField ? m_selectedField->getContainer() : nullptr;
    m_steps.push_back({std::unique_ptr<SpxCommand>(command), container});
    m_done = int(m_steps.size());
    command->execute();
}

bool TestHost::undo()
{
    if (m_done == 0)
        return false;
    m_steps[std::size_t(--m_done)].command->undo();
    return true;
}

bool TestHost::redo()
{
    if (redoCount() == 0)
        return false;
    m_steps[std::size_t(m_done++)].command->redo();
    return true;
}

void TestHost::clearUndo()
{
    m_steps.clear();
    m_done = 0;
}

void TestHost::dyingCB(void* host, SoFieldContainer* dying)
{
    static_cast<TestHost*>(host)->goesAway(dying);
}

void TestHost::goesAway(const SoFieldContainer* container)
{
    for (const QPointer<SpxExtension>& extension : m_loaded) {
        auto* editor = qobject_cast<SpxEditor*>(extension.data());
        const auto* field = editor ? dynamic_cast<SoField*>(editor->getEditedObject()) : nullptr;
        if (field && field->getContainer() == container)
            release(*editor);
    }
    if (m_selectedField && m_selectedField->getContainer() == container)
        select(static_cast<SoField*>(nullptr));
    if (m_selectedNode == container)
        select(static_cast<SoFieldContainer*>(nullptr));
    const auto touches = [container](const Step& step) { return step.container == container; };
    if (std::any_of(m_steps.begin(), m_steps.end(), touches))
        clearUndo();
}

SpxProfile* TestHost::addProfile(const SbString& name)
{
    m_profiles.push_back(std::make_unique<SpxProfile>(name));
    return m_profiles.back().get();
}

void TestHost::control(QList<SpxExtension*> extensions)
{
    m_setting.setControlledExtensions(std::move(extensions));
}

bool TestHost::isLoaded(const SpxExtension& extension) const
{
    return std::find(m_loaded.begin(), m_loaded.end(), &extension) != m_loaded.end();
}

void TestHost::start(SpxExtension& extension)
{
    if (!isLoaded(extension)) {
        extension.load();
        m_loaded.emplace_back(&extension);
    }
    extension.activate();
}

void TestHost::stop(SpxExtension& extension)
{
    if (!isLoaded(extension))
        return;
    if (extension.isActive())
        extension.deactivate();
    extension.unload();
    m_loaded.erase(std::find(m_loaded.begin(), m_loaded.end(), &extension));
}

void TestHost::edit(SpxEditor& editor, SoTypedObject* object)
{
    m_selectedField = dynamic_cast<SoField*>(object);
    editor.setEditedObject(object);
    start(editor);
}

void TestHost::release(SpxEditor& editor)
{
    editor.deactivate();
    editor.setEditedObject(nullptr);
    m_selectedField = nullptr;
}

void TestHost::pump()
{
    SoSensorQueue& queue = SoSensorQueue::getInstance();
    do {
        queue.process();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    } while (!queue.isEmpty());
}

bool TestHost::waitFor(const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.hasExpired(60000))
            return false;
        pump();
        QThread::msleep(1);
    }
    return true;
}

void TestHost::addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area)
{
    note("addDockWidget " + quoted(*dock) + ' ' + std::to_string(area));
    m_window.addDockWidget(area, dock);
}

void TestHost::removeDockWidget(QDockWidget* dock)
{
    note("removeDockWidget " + quoted(*dock));
    m_window.removeDockWidget(dock);
    dock->setParent(nullptr);
}

void TestHost::attachExtension(SpxExtension* extension, bool attach)
{
    note("attachExtension " + quoted(*extension) + (attach ? " true" : " false"));
}

void TestHost::detachExtension(SpxExtension* extension)
{
    note("detachExtension " + quoted(*extension));
}

void TestHost::addToolBar(QToolBar* toolBar, Qt::ToolBarArea area)
{
    note("addToolBar " + quoted(*toolBar) + ' ' + std::to_string(area));
    m_window.addToolBar(area, toolBar);
}

void TestHost::removeToolBar(QToolBar* toolBar)
{
    note("removeToolBar " + quoted(*toolBar));
    m_window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
}

QList<SpxProfile*> TestHost::getProfilesList() const
{
    QList<SpxProfile*> profiles;
    for (const auto& profile : m_profiles)
        profiles.append(profile.get());
    return profiles;
}

void TestHost::setActiveProfile(SpxProfile* profile)
{
    note("setActiveProfile " + (profile ? profile->getName().str() : "null"));
    m_activeProfile = profile;
}

const SpxProfileSetting* TestHost::getProfileSetting(const SpxExtension* /*extension*/) const
{
    return &m_setting;
}
