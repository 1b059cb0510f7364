// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

#include <xsg/nodes/base/SoNode.h>

namespace scopix
{

class FindBar;
class SceneFinder;
class SceneTreeView;

/// The scene's tree with what finds in it. GUI thread only.
class ScenePanel : public QWidget
{
    Q_OBJECT

public:
    explicit ScenePanel(QWidget* parent = nullptr);

    void setScene(SoNode* root);
    SceneTreeView& getTree() const { return *m_tree; }
    SceneFinder& getFinder() const { return *m_finder; }
    /// Puts the focus where the user types what to find.
    void startFinding();
    /// As if the user had typed it there.
    void find(const QString& query);

private:
    void foundChanged();
    void filter();
    void expandFound();

    SceneFinder* m_finder;
    FindBar* m_bar;
    SceneTreeView* m_tree;
    QTimer m_filterSoon;
};

} // namespace scopix
