// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxPreviewServices.h>

#include <functional>
#include <memory>
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

    /// The fields have their present values while `act` runs, whatever shows.
    void withPresent(const std::function<void()>& act);
    /// The container is about to be destroyed.
    void forget(const SoFieldContainer* dying);

signals:
    /// The last moment at which the fields have their present values.
    void aboutToShowFormer();

private:
    using Edits = std::vector<std::unique_ptr<FieldEdit>>;
    void writeFormer(const std::vector<SoField*>& fields);
    std::vector<SoField*> writePresent();

    UndoHistory& m_history;
    Edits m_present; // of the fields whose former values show: from the present ones to those
};

} // namespace scopix
