// SPDX-License-Identifier: MIT
#include "services/HostPreview.h"

#include "undo/FieldEdit.h"
#include "undo/UndoHistory.h"

#include <xsg/core/SoField.h>

#include <algorithm>
#include <set>

namespace scopix
{

HostPreview::HostPreview(UndoHistory& history)
    : m_history(history)
{
    m_history.setHold([this] { return refusesEdit(); });
}

HostPreview::~HostPreview()
{
    showPresent();
    m_history.setHold({});
}

QList<SoField*> HostPreview::getEditedFields(const SoFieldContainer* node) const
{
    QList<SoField*> fields;
    for (SoField* field : m_history.editedSinceSaved()) {
        if (!node || field->getContainer() == node)
            fields.append(field);
    }
    return fields;
}

bool HostPreview::showFormer(const QList<SoField*>& fields)
{
    m_history.endStep();
    const std::set<SoField*> edited = m_history.editedSinceSaved();
    std::vector<SoField*> wanted;
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(wanted),
                 [&](SoField* field) { return edited.count(field) > 0; });
    return show(wanted, [this](const std::set<SoField*>& some) { m_history.writeSaved(some); });
}

bool HostPreview::showFormer(const QList<SoField*>& fields, WriteFormer write)
{
    m_history.endStep();
    return show({fields.begin(), fields.end()}, std::move(write));
}

bool HostPreview::show(const std::vector<SoField*>& fields, WriteFormer write)
{
    const bool wasShown = isShowingFormer();
    writePresent();
    m_write = std::move(write);
    std::vector<SoField*> wanted;
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(wanted),
                 [](const SoField* field) { return !field->isConnected(); });
    if (!wanted.empty() && !wasShown)
        emit aboutToShowFormer();
    writeFormer(wanted);
    if (wasShown != isShowingFormer())
        emit formerShown(isShowingFormer());
    return isShowingFormer();
}

void HostPreview::showPresent()
{
    if (!isShowingFormer())
        return;
    writePresent();
    emit formerShown(false);
}

bool HostPreview::refusesEdit()
{
    if (isShowingFormer())
        emit editRefused(tr("Nothing can be edited while the values before the edits show; press B in the "
                            "view to see the present ones."));
    return isShowingFormer();
}

// To the scene itself (decisions.md: preview-writes).
void HostPreview::writeFormer(const std::vector<SoField*>& fields)
{
    for (SoField* field : fields) {
        m_present.push_back(std::make_unique<FieldEdit>(*field));
        m_present.back()->aboutToWrite(0, -1);
    }
    if (!fields.empty())
        m_history.unrecorded([&] { m_write({fields.begin(), fields.end()}); });
    const auto isTheSame = [](const std::unique_ptr<FieldEdit>& edit) {
        edit->close();
        return edit->isNothing();
    };
    m_present.erase(std::remove_if(m_present.begin(), m_present.end(), isTheSame), m_present.end());
}

// Which fields had their former values.
std::vector<SoField*> HostPreview::writePresent()
{
    const Edits edits = std::exchange(m_present, {});
    std::vector<SoField*> fields;
    m_history.unrecorded([&] {
        for (const auto& edit : edits) {
            edit->undo();
            fields.push_back(&edit->field());
        }
    });
    return fields;
}

void HostPreview::withPresent(const std::function<void()>& act)
{
    if (!isShowingFormer())
        return act();
    const std::vector<SoField*> fields = writePresent();
    act();
    writeFormer(fields);
    if (!isShowingFormer())
        emit formerShown(false);
}

void HostPreview::forget(const SoFieldContainer* dying)
{
    if (!isShowingFormer())
        return;
    const auto isOfIt = [dying](const std::unique_ptr<FieldEdit>& edit) {
        return edit->field().getContainer() == dying;
    };
    const auto gone = std::stable_partition(m_present.begin(), m_present.end(),
                                            [&](const auto& edit) { return !isOfIt(edit); });
    // With the values, nodes may go that come here again.
    const Edits dropped(std::make_move_iterator(gone), std::make_move_iterator(m_present.end()));
    m_present.erase(gone, m_present.end());
    if (!isShowingFormer())
        emit formerShown(false);
}

} // namespace scopix
