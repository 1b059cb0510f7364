// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxWatcher.h>

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class SoPath;

namespace inspector
{

class FlowRow;
class RowList;

/// A node at a glance: where it stands, what governs its look, and all its fields, to be filtered and edited.
/// Or several nodes: how many of which type, and the fields that they share. GUI thread only.
class FieldPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FieldPanel(QWidget* parent = nullptr);

    /// None shows nothing. The last is the current one.
    void setNodes(const std::vector<SoFieldContainer*>& nodes);
    /// The current one, or null.
    SoFieldContainer* node() const;
    /// All that are alive.
    std::vector<SoFieldContainer*> nodes() const;
    void refresh();
    /// At most 30 times a second.
    void refreshSoon();
    void finish();
    void focusFilter();
    /// How values are shown has changed.
    void rebuild();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* makeHeader();
    QLayout* makeFilter();
    void watch(const std::vector<SoFieldContainer*>& nodes);
    QString titleOf(const std::vector<SoFieldContainer*>& nodes) const;
    void showPlace();
    void showBreadcrumb(const SoPath& path);
    void showNearby(const SoPath& path);
    void choose(SoField* field);

    std::vector<std::unique_ptr<SpxWatcher>> m_watchers; // of the nodes, in their order
    QElapsedTimer m_sinceShown;
    QTimer m_later;
    QLabel* m_title;
    FlowRow* m_breadcrumb;
    FlowRow* m_nearby;
    QLineEdit* m_filter;
    QCheckBox* m_onlyChanged;
    RowList* m_rows;
};

} // namespace inspector
