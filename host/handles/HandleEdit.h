// SPDX-License-Identifier: MIT
#pragma once

#include "handles/HandleSubject.h"

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class SoField;

namespace scopix
{

class FieldEdit;
class HostServices;

/// An edit that is seen in the scene while it goes on, and is then one undo step, or none: of fields of one
/// or more nodes, and of transforms that are put into the scene for it. While it goes on, nothing that it
/// writes is an edit for the undo history. GUI thread only.
class HandleEdit
{
public:
    explicit HandleEdit(HostServices& services);
    ~HandleEdit();

    /// Of these fields of the node, too, which is kept alive until it ends.
    void add(SoNode* node, const std::vector<SoField*>& fields);
    /// Puts the transform in and edits that, too.
    void add(std::shared_ptr<AddedTransform> added);
    bool isActive() const { return !m_nodes.empty(); }

    void write(const std::function<void()>& change);
    /// Makes a step of this name. False where nothing differs, which is none. No transform stays that
    /// moves nothing.
    bool keep(const QString& name);
    /// All is as it was, every bit.
    void giveBack();
    /// What to select after transforms have been put in or taken out by undo or redo, once; empty where what
    /// is selected does not stand elsewhere.
    QList<SoPath> takeSelection();

private:
    bool differs();
    void end();

    HostServices& m_services;
    std::vector<SoRef<SoNode>> m_nodes;
    std::vector<std::unique_ptr<FieldEdit>> m_fields;
    std::vector<std::shared_ptr<AddedTransform>> m_added;
    std::shared_ptr<QList<SoPath>> m_selection; // noted by steps that are undone or redone
};

} // namespace scopix
