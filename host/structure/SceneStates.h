// SPDX-License-Identifier: MIT
#pragma once

#include "structure/Places.h"

#include <xsg/actions/SoHiding.h>

#include <QObject>

#include <unordered_set>

class SpxCommand;
class SpxEditedFields;

namespace scopix
{

/// What the user has set for nodes of the open scene without writing it to the scene: which are hidden, which
/// alone are seen, and which are locked, each with all that is below it. Keeps no node alive. GUI thread
/// only.
class SceneStates : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Groups, shapes and lights; what only sets something for others has nothing to hide.
    static bool canBeHidden(SoNode& node);
    const SoHiding& getHiding() const { return m_hiding; }
    /// What clicks go through: that, and what is locked.
    const SoHiding& getUntouchable() const { return m_untouchable; }
    bool isHidden(const SoNode* node) const { return m_hiding.isHidden(node); }
    /// Those below the root, each once.
    std::vector<SoNode*> findHidden(SoNode* root) const;
    std::vector<SoNode*> findIsolated(SoNode* root) const;
    void setHidden(const std::vector<SoNode*>& nodes, bool hidden);
    void isolate(const std::vector<const SoNode*>& nodes);
    void showAll();

    bool isLocked(const SoNode* node) const { return m_locked.count(node->getNodeId()) > 0; }
    void setLocked(const std::vector<SoNode*>& nodes, bool locked);
    /// The node itself, or the first one above it, that is locked; null where none is.
    const SoNode* lockOf(const SoNode* node) const;
    const SoNode* lockOn(const SoPath& path) const;

    /// Why nobody may edit it, in a sentence; empty where everybody may.
    QString refusalOf(const SoFieldContainer& container) const;
    /// The same for what a command tells that it edits.
    QString refusalOf(const SpxCommand& command) const;

    /// Another scene is open.
    void clear();
    /// The other scene's are set here from now on, and these are put away there.
    void swap(SceneStates& other);

signals:
    void changed();

private:
    QString lockRefusalOf(const SoFieldContainer& container) const;
    static QString structureRefusalOf(const SpxEditedFields& told);
    void updateTouch(const SoNode* node);

    SoHiding m_hiding;
    SoHiding m_untouchable;
    std::unordered_set<std::uint64_t> m_locked;
};

} // namespace scopix
