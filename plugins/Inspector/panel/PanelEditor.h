// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxObjectEditor.h>

#include <QPointer>

#include <memory>

class QAction;

namespace inspector
{

class FieldPanel;
class PinnedPanels;

/// The panel of a whole node, whatever its type, or of all selected nodes, for the dock that shows node
/// editors. GUI thread only.
class PanelEditor : public SpxObjectEditor
{
    Q_OBJECT

public:
    /// `pins` must outlive it.
    explicit PanelEditor(PinnedPanels& pins);
    ~PanelEditor() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;

protected:
    void build(QWidget& widget) override;
    void refresh() override;

private:
    void showNodes();
    void follow(SoFieldContainer* node);
    void addMenus();
    void removeMenus();
    void addSettings();
    void rebuild();
    void filter();

    PinnedPanels& m_pins;
    QPointer<FieldPanel> m_panel;
    std::unique_ptr<QAction> m_filterAction;
    std::unique_ptr<QAction> m_degreesAction;
};

} // namespace inspector
