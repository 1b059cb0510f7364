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
class QToolButton;
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
    enum class Place {
        Selected, // shows what is selected, and selects the field that the user works in
        Pinned    // stays with its nodes and leaves the selection alone
    };

    explicit FieldPanel(Place place = Place::Selected, QWidget* parent = nullptr);

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
    /// Offers to pin the nodes.
    void setPinnable(bool pinnable);
    /// Marks the rows that differ from this node's, and offers its values. Null ends that.
    void compareWith(SoFieldContainer* other);
    /// How values are shown has changed.
    void rebuild();

signals:
    void pinRequested();
    /// One of the nodes no longer exists. From inside its end: nobody may be deleted.
    void nodeDestroyed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QLayout* makeHeader();
    QLayout* makeFilter();
    void watch(const std::vector<SoFieldContainer*>& nodes);
    QString titleOf(const std::vector<SoFieldContainer*>& nodes) const;
    void showPlace();
    void showBreadcrumb(const SoPath& path);
    void showNearby(const SoPath& path);
    void choose(SoField* field);
    void makeBefore();
    void showBefore(bool before);

    Place m_place;
    QAction* m_pin;
    QToolButton* m_pinButton;
    QToolButton* m_before;
    SpxWatcher m_compared;
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
