// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxPreviewServices.h>

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace scopix
{

class FieldEdit;
class UndoHistory;

/// Shows what the undo history knows of former values, by writing them without a trace in it. GUI thread
/// only.
class HostPreview : public SpxPreviewServices
{
    Q_OBJECT

public:
    /// The history must outlive it.
    explicit HostPreview(UndoHistory& history);
    ~HostPreview() override;

    QList<SoField*> getEditedFields(const SoFieldContainer* node = nullptr) const override;
    bool showFormer(const QList<SoField*>& fields) override;
    void showPresent() override;
    bool isShowingFormer() const override { return !m_present.empty(); }
    bool refusesEdit() override;

    /// Writes to these fields what they held once, which only it knows.
    using WriteFormer = std::function<void(const std::set<SoField*>& fields)>;
    /// The same for former values that somebody else keeps.
    bool showFormer(const QList<SoField*>& fields, WriteFormer write);
    /// The fields have their present values while `act` runs, whatever shows.
    void withPresent(const std::function<void()>& act);
    /// The container is about to be destroyed.
    void forget(const SoFieldContainer* dying);

signals:
    /// The last moment at which the fields have their present values.
    void aboutToShowFormer();

private:
    using Edits = std::vector<std::unique_ptr<FieldEdit>>;
    bool show(const std::vector<SoField*>& fields, WriteFormer write);
    void writeFormer(const std::vector<SoField*>& fields);
    std::vector<SoField*> writePresent();

    UndoHistory& m_history;
    WriteFormer m_write;
    Edits m_present; // of the fields whose former values show: from the present ones to those
};

} // namespace scopix
