// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace scopix
{

class FigureWalk;

/// How much there is below nodes. Counted for those that somebody asks about, on walks over the scene in
/// short pieces between events, and again some time after the scene has changed: until then the figures of
/// before hold. GUI thread only.
class NodeFigures : public QObject
{
    Q_OBJECT

public:
    struct Figures {
        qint64 triangles = 0; // drawn, each copy counting
        qint64 bytes = 0;     // of nodes and their values; what is shared counts at its first place
    };

    explicit NodeFigures(QObject* parent = nullptr);
    ~NodeFigures() override;

    void setRoot(SoNode* root);
    /// Nothing while it is not known; changed() then follows.
    std::optional<Figures> find(const SoNode* node);
    bool isCounting() const { return m_pieces.isActive() || m_soon.isActive(); }

signals:
    void changed();

private:
    using Known = std::unordered_map<const SoNode*, Figures>;

    void begin();
    void advance();

    SoRef<SoNode> m_root;
    std::unordered_set<const SoNode*> m_wanted; // compared only
    Known m_known;
    std::uint32_t m_knownAt = 0; // the root's change count
    std::unique_ptr<FigureWalk> m_walk;
    QTimer m_pieces;
    QTimer m_soon;
};

} // namespace scopix
