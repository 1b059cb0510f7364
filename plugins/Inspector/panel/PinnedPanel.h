// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>

#include <vector>

class QLabel;
class QStackedWidget;
class QToolButton;
class SoFieldContainer;

namespace inspector
{

class FieldPanel;

/// A dock with the panel of a node, or of several, that stays as long as the user wants it; when they are
/// destroyed, it says so. GUI thread only.
class PinnedPanel : public QDockWidget
{
    Q_OBJECT

public:
    explicit PinnedPanel(const std::vector<SoFieldContainer*>& nodes);
    ~PinnedPanel() override;

    /// Those that are alive.
    std::vector<SoFieldContainer*> nodes() const;
    /// Null once it is destroyed.
    SoFieldContainer* node() const;
    void finish();

    /// Marks what differs from this node, which may be null; while the user wants that.
    void compareWith(SoFieldContainer* other);
    void stopComparing();

signals:
    /// The user does not need it any more.
    void closed();
    void compareToggled(bool on);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makeHead();
    void nodeDestroyed();

    QStackedWidget* m_pages;
    FieldPanel* m_panel;
    QToolButton* m_compare;
    QLabel* m_comparedWith;
    QLabel* m_end;
    QString m_label; // of the nodes, as long as they lived
};

} // namespace inspector
