// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QTabBar>

class QMenu;

namespace scopix
{

class OpenScene;
class SceneFiles;

/// A tab for each scene or program that is open, named by it, with a dot while it has unsaved edits. Hidden
/// while there is one. Dragging a tab, or an act, gives it another place. GUI thread only.
class SceneTabs : public QTabBar
{
    Q_OBJECT

public:
    /// The files must outlive it, or be destroyed with the same window.
    explicit SceneTabs(SceneFiles& files);

    /// The acts that go from one to another.
    void addTo(QMenu& menu);

protected:
    QSize minimumTabSizeHint(int index) const override;
    void changeEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void showAll();
    void showTab(int index, const OpenScene& scene);
    void addCross(int index);
    void showCrosses();
    void choose(int index);
    void close(int index);
    void go(int by);
    void shift(int by);

    SceneFiles& m_files;
    QList<QAction*> m_acts; // that only several tabs are for
    ButtonPosition m_side;  // of the crosses
};

} // namespace scopix
