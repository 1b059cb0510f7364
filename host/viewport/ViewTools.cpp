// SPDX-License-Identifier: MIT
#include "viewport/ViewTools.h"

#include "viewport/ViewSight.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace scopix
{

/// Lies over the picture, so that what is painted on it changes without another picture.
class ViewTools::Sheet : public QWidget
{
public:
    Sheet(QWidget* view, const ViewTools& tools)
        : QWidget(view)
        , m_tools(tools)
    {
        setObjectName(QStringLiteral("viewSheet"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const ViewSight sight = m_tools.m_sight();
        for (ViewTool* tool : m_tools.m_tools) {
            painter.save();
            tool->paint(painter, sight);
            painter.restore();
        }
    }

private:
    const ViewTools& m_tools;
};

ViewTools::ViewTools(QWidget& view, std::function<ViewSight()> sight)
    : m_view(view)
    , m_sight(std::move(sight))
{
}

void ViewTools::add(ViewTool* tool)
{
    m_tools.push_back(tool);
    if (!m_sheet) {
        m_sheet = new Sheet(&m_view, *this);
        m_sheet->setGeometry(m_view.rect());
        m_sheet->show();
        m_view.setMouseTracking(true);
    }
    repaint();
}

void ViewTools::remove(ViewTool* tool)
{
    m_tools.erase(std::remove(m_tools.begin(), m_tools.end(), tool), m_tools.end());
    for (ViewTool** role : {&m_holding, &m_hovering}) {
        if (*role == tool)
            *role = nullptr;
    }
    updateCursor();
    repaint();
}

// A tool may add and remove tools while it acts.
template <class Event>
ViewTool* ViewTools::offer(bool (ViewTool::*method)(Event&), Event& event)
{
    const std::vector<ViewTool*> tools = m_tools;
    for (ViewTool* tool : tools) {
        if (std::find(m_tools.begin(), m_tools.end(), tool) != m_tools.end() && (tool->*method)(event))
            return tool;
    }
    return nullptr;
}

bool ViewTools::press(QMouseEvent& event)
{
    ViewTool* const taker = m_holding ? m_holding : offer(&ViewTool::mousePressed, event);
    if (m_holding)
        m_holding->mousePressed(event);
    m_holding = taker;
    updateCursor();
    return taker != nullptr;
}

bool ViewTools::move(QMouseEvent& event)
{
    if (m_holding) {
        m_holding->mouseMoved(event);
    } else {
        ViewTool* const before = m_hovering;
        m_hovering = offer(&ViewTool::mouseMoved, event);
        if (m_hovering && m_hovering != before) {
            for (ViewTool* tool : std::vector<ViewTool*>(m_tools)) {
                if (tool != m_hovering)
                    tool->mouseLeft();
            }
        }
    }
    updateCursor();
    return m_holding || m_hovering;
}

bool ViewTools::release(QMouseEvent& event)
{
    if (!m_holding)
        return offer(&ViewTool::mouseReleased, event) != nullptr;
    m_holding->mouseReleased(event);
    letGo(event);
    return true;
}

void ViewTools::letGo(const QMouseEvent& event)
{
    if (event.buttons() == Qt::NoButton)
        m_holding = nullptr;
    updateCursor();
}

// Its press comes as this, without another; its release is the tool's.
bool ViewTools::doubleClick(QMouseEvent& event)
{
    ViewTool* const taker = offer(&ViewTool::mouseDoubleClicked, event);
    m_holding = taker;
    updateCursor();
    return taker != nullptr;
}

bool ViewTools::wheel(QWheelEvent& event)
{
    return offer(&ViewTool::wheelTurned, event) != nullptr;
}

bool ViewTools::keyPress(QKeyEvent& event)
{
    const bool isTaken = offer(&ViewTool::keyPressed, event) != nullptr;
    updateCursor();
    return isTaken;
}

bool ViewTools::keyRelease(QKeyEvent& event)
{
    return offer(&ViewTool::keyReleased, event) != nullptr;
}

bool ViewTools::wantsKey(const QKeyEvent& event) const
{
    return std::any_of(m_tools.begin(), m_tools.end(), [&](ViewTool* tool) { return tool->wantsKey(event); });
}

void ViewTools::leave()
{
    m_hovering = nullptr;
    for (ViewTool* tool : std::vector<ViewTool*>(m_tools))
        tool->mouseLeft();
    updateCursor();
}

void ViewTools::loseFocus()
{
    for (ViewTool* tool : std::vector<ViewTool*>(m_tools))
        tool->focusLost();
}

void ViewTools::updateCursor()
{
    for (const ViewTool* tool : m_tools) {
        if (const auto cursor = tool->getCursor())
            return m_view.setCursor(*cursor);
    }
    m_view.unsetCursor();
}

void ViewTools::sceneChanged()
{
    for (ViewTool* tool : std::vector<ViewTool*>(m_tools))
        tool->sceneChanged();
}

void ViewTools::extend(SbBox3f& seen) const
{
    for (ViewTool* tool : m_tools)
        tool->extend(seen);
}

void ViewTools::draw(SoOverlay& overlay) const
{
    if (m_tools.empty())
        return;
    const ViewSight sight = m_sight();
    for (ViewTool* tool : m_tools)
        tool->draw(overlay, sight);
}

void ViewTools::repaint()
{
    if (m_sheet)
        m_sheet->update();
}

void ViewTools::setGeometry(const QRect& place)
{
    if (m_sheet)
        m_sheet->setGeometry(place);
}

} // namespace scopix
