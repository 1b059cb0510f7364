// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>
#include <xsg/core/SoFieldContainer.h>

#include <vector>

namespace inspector
{

class PinnedPanel;

/// Panels that stay with their nodes, whatever is selected: each in a dock of its own, any number. One of
/// them may be compared with the selected node, or two with one another. Owns the docks; the host shows and
/// hides all together. GUI thread only.
class PinnedPanels : public SpxExtension
{
    Q_OBJECT

public:
    PinnedPanels();
    ~PinnedPanels() override;

    void load() override {}
    void unload() override;
    void activate() override;
    void deactivate() override;
    void show() override;
    void hide() override;

    /// A panel of these nodes, which are alive; one that shows the same comes to the front instead. Nothing
    /// unless active.
    void pin(const std::vector<SoFieldContainer*>& nodes);
    /// The node whose panel is compared with the selected one; null for none.
    SoFieldContainer* compared() const;

signals:
    void comparedChanged();

private:
    PinnedPanel* panelOf(const std::vector<SoFieldContainer*>& nodes) const;
    QString freeName() const;
    void close(PinnedPanel* panel);
    void setCompared(PinnedPanel* panel, bool on);
    void compare();

    std::vector<PinnedPanel*> m_panels;
    std::vector<PinnedPanel*> m_compared; // one or two of them, in the order in which the user chose them
};

} // namespace inspector
