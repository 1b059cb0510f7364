// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxObjectEditor.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <memory>

class QAction;

namespace inspector
{

class FieldPanel;

/// The panel of a whole node, whatever its type, for the dock that shows node editors. Shows changes at most
/// 30 times a second. GUI thread only.
class PanelEditor : public SpxObjectEditor
{
    Q_OBJECT

public:
    PanelEditor();
    ~PanelEditor() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;

protected:
    void build(QWidget& widget) override;
    void refresh() override;

private:
    void showChanges();
    void addMenus();
    void removeMenus();
    void filter();

    QPointer<FieldPanel> m_panel;
    QElapsedTimer m_sinceShown;
    QTimer m_later;
    std::unique_ptr<QAction> m_filterAction;
    std::unique_ptr<QAction> m_degreesAction;
};

} // namespace inspector
