// SPDX-License-Identifier: MIT
#include "panel/PinnedPanel.h"

#include "fields/FieldText.h"
#include "panel/FieldPanel.h"

#include <xsg/core/SoFieldContainer.h>

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace inspector
{

namespace
{

constexpr int Margin = 6;

} // namespace

PinnedPanel::PinnedPanel(const std::vector<SoFieldContainer*>& nodes)
    : m_pages(new QStackedWidget)
    , m_panel(new FieldPanel(FieldPanel::Place::Pinned))
    , m_compare(new QToolButton)
    , m_comparedWith(new QLabel)
    , m_end(new QLabel)
{
    m_panel->setNodes(nodes);
    m_label = nodes.size() == 1 ? nodeLabel(*nodes.front()) : tr("%L1 nodes").arg(nodes.size());
    setWindowTitle(tr("%1 (pinned)").arg(m_label));
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, Margin, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHead());
    layout->addWidget(m_panel, 1);
    m_end->setObjectName(QStringLiteral("end"));
    m_end->setWordWrap(true);
    m_end->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_end->setMargin(2 * Margin);
    m_pages->addWidget(whole);
    m_pages->addWidget(m_end);
    setWidget(m_pages);
    connect(m_panel, &FieldPanel::nodeDestroyed, this, &PinnedPanel::nodeDestroyed);
}

PinnedPanel::~PinnedPanel() = default;

QWidget* PinnedPanel::makeHead()
{
    auto* head = new QWidget;
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(Margin, 0, Margin, 0);
    m_compare->setObjectName(QStringLiteral("compare"));
    m_compare->setText(tr("Compare"));
    m_compare->setCheckable(true);
    m_compare->setProperty("editsNothing", true);
    m_compare->setFocusPolicy(Qt::TabFocus);
    m_compare->setToolTip(
        tr("Marks the rows that differ from those of the selected node, or of another pinned panel that "
           "compares."));
    if (nodes().size() != 1)
        m_compare->hide();
    connect(m_compare, &QToolButton::toggled, this, [this](bool on) {
        if (!on)
            compareWith(nullptr);
        emit compareToggled(on);
    });
    m_comparedWith->setObjectName(QStringLiteral("comparedWith"));
    m_comparedWith->setMinimumWidth(1);
    layout->addWidget(m_compare);
    layout->addWidget(m_comparedWith, 1);
    return head;
}

std::vector<SoFieldContainer*> PinnedPanel::nodes() const
{
    return m_panel->nodes();
}

SoFieldContainer* PinnedPanel::node() const
{
    return m_panel->node();
}

void PinnedPanel::finish()
{
    m_panel->finish();
}

void PinnedPanel::compareWith(SoFieldContainer* other)
{
    SoFieldContainer* compared = m_compare->isChecked() && other != node() ? other : nullptr;
    m_panel->compareWith(compared);
    m_comparedWith->setText(!m_compare->isChecked() ? QString()
                            : compared              ? tr("with %1").arg(nodeLabel(*compared))
                                                    : tr("Select one other node to compare with."));
    m_comparedWith->setToolTip(m_comparedWith->text());
}

void PinnedPanel::stopComparing()
{
    m_compare->setChecked(false);
}

// Several are shown as long as one of them lives.
void PinnedPanel::nodeDestroyed()
{
    const std::vector<SoFieldContainer*> left = nodes();
    if (!left.empty())
        return m_panel->setNodes(left);
    stopComparing();
    m_panel->setNodes({});
    m_end->setText(
        tr("“%1” was removed from the scene and no longer exists; close this panel.").arg(m_label));
    m_pages->setCurrentWidget(m_end);
}

void PinnedPanel::closeEvent(QCloseEvent* event)
{
    QDockWidget::closeEvent(event);
    emit closed();
}

} // namespace inspector
