// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoChangeListener.h>
#include <xsg/nodes/base/SoNode.h>

#include <functional>
#include <unordered_set>
#include <vector>

namespace scopix
{

/// Which fields below a node have changed. Listens to what the scene reports, and looks for nothing. GUI
/// thread only.
class ChangedFields final : private SoChangeListener
{
public:
    /// `structureChanged` is called once for each watch(), in the middle of the change, in which nothing may
    /// be written.
    explicit ChangedFields(std::function<void()> structureChanged)
        : m_report(std::move(structureChanged))
    {
    }
    ChangedFields(const ChangedFields&) = delete;
    ChangedFields& operator=(const ChangedFields&) = delete;
    ~ChangedFields();

    /// From now on, and forgets what was before; null ends it.
    void watch(SoNode* root);
    bool isWatching() const { return m_root != nullptr; }
    /// More than fields changed: children or names. What this knows about fields is then of no use, since
    /// some may be gone.
    bool isStructureChanged() const { return m_isStructureChanged; }
    bool isEmpty() const { return m_fields.empty(); }
    /// One of them, which counts as unchanged from then on.
    SoField* take();

private:
    void changed(const SoNotification& change) override;
    void subjectDestroyed() override { watch(nullptr); }

    std::function<void()> m_report;
    SoNode* m_root = nullptr;
    std::vector<SoField*> m_fields;
    std::unordered_set<const SoField*> m_known; // the same, to look up
    bool m_isStructureChanged = false;
};

} // namespace scopix
