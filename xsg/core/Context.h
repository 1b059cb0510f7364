// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/ContainerNames.h>
#include <xsg/core/SoFieldContainer.h>

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace xsg
{

/// The process-wide state of scene graphs, all in one place: this level's own as members, that of the levels
/// above in slots, one per type. Made at first use and never destroyed, since nodes may outlive main().
///
/// Belongs to the graph's thread, but for what says otherwise. What levels below keep is not here and has a
/// lock of its own: the interned names (SbName), the types (SoType), the error handlers and the counters.
class Context
{
public:
    static Context& get();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    struct DestructionListener {
        SoFieldContainer::DyingCallback callback;
        void* data;
    };

    /// What SoPreferences holds. Any thread, under its lock.
    struct Preferences {
        std::mutex mutex;
        std::map<std::string, std::string, std::less<>> values;
        std::set<std::string> warned; // sentences
    };

    ContainerNames names;
    Preferences preferences;
    std::vector<DestructionListener> destructionListeners;
    /// Containers that wait for the destruction of the one before them, or null while nothing is destroyed.
    std::vector<const SoFieldContainer*>* pendingDestruction = nullptr;
    std::uint64_t lastNotification = 0;
    /// Atomic: nodes may be built on another thread before they join a scene.
    std::atomic<std::uint64_t> lastNodeId{0};
    /// How often children of a group have changed. Atomic for the same reason.
    std::atomic<std::uint64_t> structureChanges{0};
    /// Called for each destroyed field that was marked as a trigger; set by the level of the sensors.
    void (*triggerDestroyed)(const SoField* field) = [](const SoField* /*field*/) {};

    /// The state of this type, made by the first call. A look-up: callers that are asked often keep the
    /// reference.
    template <class State>
    State& state()
    {
        std::shared_ptr<void>& slot = m_states[std::type_index(typeid(State))];
        if (!slot)
            slot = std::shared_ptr<State>(new State);
        return *static_cast<State*>(slot.get());
    }

private:
    Context() = default;
    ~Context() = default;

    std::unordered_map<std::type_index, std::shared_ptr<void>> m_states;
};

} // namespace xsg
