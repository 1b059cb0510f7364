// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxWatcher.h>

#include <QWidget>

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
/// GUI thread only.
class FieldPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FieldPanel(QWidget* parent = nullptr);

    /// Null shows nothing.
    void setNode(SoFieldContainer* node);
    SoFieldContainer* node() const;
    void refresh();
    void finish();
    void focusFilter();
    /// How values are shown has changed.
    void rebuild();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* makeHeader();
    QLayout* makeFilter();
    void showPlace();
    void showBreadcrumb(const SoPath& path);
    void showNearby(const SoPath& path);
    void choose(SoField* field);

    SpxWatcher m_life; // of the node
    QLabel* m_title;
    FlowRow* m_breadcrumb;
    FlowRow* m_nearby;
    QLineEdit* m_filter;
    QCheckBox* m_onlyChanged;
    RowList* m_rows;
};

} // namespace inspector
