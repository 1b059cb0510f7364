// SPDX-License-Identifier: MIT
#include "rows/LinkRow.h"

#include "fields/FieldText.h"

#include <scopix/SpxSceneServices.h>
#include <scopix/SpxShellMenus.h>
#include <xsg/nodes/base/SoSFNode.h>

#include <QHBoxLayout>
#include <QPushButton>

namespace inspector
{

LinkRow::LinkRow(SoField* field)
    : Row(field)
{
}

void LinkRow::build()
{
    m_button = new QPushButton;
    m_button->setObjectName(QStringLiteral("link"));
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_button->setMinimumWidth(1);
    editorLayout()->addWidget(m_button, 1);
    addInput(m_button);
    connect(m_button, &QPushButton::clicked, this, &LinkRow::open);
}

void LinkRow::open()
{
    SpxSceneServices* scene = SpxSceneServices::getInstance();
    if (!scene || !field())
        return;
    if (const auto* link = dynamic_cast<const SoSFNode*>(field())) {
        if (SoNode* node = link->getNode())
            scene->selectNode(node);
        return;
    }
    scene->selectField(field());
    if (SpxShellMenus* shell = SpxShellMenus::getInstance())
        shell->raiseDocksOf("Field Editor");
}

void LinkRow::showValue()
{
    const auto* link = dynamic_cast<const SoSFNode*>(field());
    if (isMixed())
        m_text = mixedWord();
    else if (link)
        m_text = link->getNode() ? nodeLabel(*link->getNode()) : tr("no node");
    else
        m_text = summary(*field());
    m_button->setToolTip(m_text + QStringLiteral("\n") +
                         (link ? tr("Click to select it.") : tr("Click to open it in the Field Editor.")));
    m_button->setText(m_button->fontMetrics().elidedText(m_text, Qt::ElideRight, m_button->width() - 14));
    m_button->setEnabled(!link || link->getNode());
}

void LinkRow::resizeEvent(QResizeEvent* event)
{
    Row::resizeEvent(event);
    if (editor()->layout())
        editor()->layout()->activate();
    if (m_button)
        m_button->setText(m_button->fontMetrics().elidedText(m_text, Qt::ElideRight, m_button->width() - 14));
}

} // namespace inspector
