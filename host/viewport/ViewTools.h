// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewTool.h"

#include <functional>
#include <vector>

class QWidget;

namespace scopix
{

/// The tools of a view: who gets an event, and what they paint over the picture. GUI thread only.
class ViewTools
{
public:
    /// `sight`: how the view sees at present. The view must outlive this.
    ViewTools(QWidget& view, std::function<ViewSight()> sight);

    /// The tool must outlive the view, or be removed.
    void add(ViewTool* tool);
    void remove(ViewTool* tool);

    // Each is true where a tool took the event.
    bool press(QMouseEvent& event);
    bool move(QMouseEvent& event);
    bool release(QMouseEvent& event);
    bool doubleClick(QMouseEvent& event);
    bool wheel(QWheelEvent& event);
    bool keyPress(QKeyEvent& event);
    bool keyRelease(QKeyEvent& event);
    bool wantsKey(const QKeyEvent& event) const;
    void leave();
    void loseFocus();

    void sceneChanged();
    void extend(SbBox3f& seen) const;
    void draw(SoOverlay& overlay) const;
    /// What is painted over the picture is no longer right; the picture itself stays.
    void repaint();
    /// Above everything else in the view but what is raised later.
    void setGeometry(const QRect& place);

private:
    class Sheet;
    template <class Event>
    ViewTool* offer(bool (ViewTool::*method)(Event&), Event& event);
    void updateCursor();
    void letGo(const QMouseEvent& event);

    QWidget& m_view;
    std::function<ViewSight()> m_sight;
    std::vector<ViewTool*> m_tools;
    ViewTool* m_holding = nullptr;  // took the press of a button that is held
    ViewTool* m_hovering = nullptr; // took the last move without one
    Sheet* m_sheet = nullptr;       // the view's, there once there is a tool
};

} // namespace scopix
