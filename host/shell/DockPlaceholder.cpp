// SPDX-License-Identifier: MIT
// The sheet that keeps the place of docks while none of them is shown.
#include "shell/HostShell.h"

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int Width = 330;
constexpr int Margin = 12;

// As wide as an editor likes to be, whatever the words.
class Words : public QLabel
{
public:
    using QLabel::QLabel;
    QSize sizeHint() const override { return {Width, heightForWidth(Width)}; }
};

} // namespace

void HostShell::keepPlaceOf(Qt::DockWidgetArea area, const QString& words)
{
    delete m_placeholder;
    m_placeholderArea = area;
    m_placeholder = new QDockWidget(tr("Selection"), &m_window);
    m_placeholder->setObjectName(QStringLiteral("placeholder"));
    m_placeholder->setFeatures(QDockWidget::NoDockWidgetFeatures);
    m_placeholder->toggleViewAction()->setVisible(false);
    auto* label = new Words(words);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    label->setMargin(Margin);
    label->setForegroundRole(QPalette::PlaceholderText);
    m_placeholder->setWidget(label);
    m_placeholder->hide();
    m_window.addDockWidget(area, m_placeholder);
}

bool HostShell::isInPlaceholdersArea(const QDockWidget* dock) const
{
    return dock && m_placeholder && !dock->isFloating() &&
           m_window.dockWidgetArea(const_cast<QDockWidget*>(dock)) == m_placeholderArea;
}

// In one place with the docks, it has their size.
void HostShell::joinPlaceholder(QDockWidget* dock)
{
    if (isInPlaceholdersArea(dock) && !m_window.tabifiedDockWidgets(dock).contains(m_placeholder))
        m_window.tabifyDockWidget(dock, m_placeholder);
}

void HostShell::updatePlaceholder()
{
    if (!m_placeholder)
        return;
    bool isWanted = false;
    for (const Owned& each : qAsConst(m_owned)) {
        const auto* dock = qobject_cast<const QDockWidget*>(each.widget);
        if (!isInPlaceholdersArea(dock))
            continue;
        if (!dock->isHidden())
            return m_placeholder->hide();
        isWanted = isWanted || (each.owner && !comesUpHidden(each.owner));
    }
    m_placeholder->setVisible(isWanted);
}

} // namespace scopix
