// SPDX-License-Identifier: MIT
#include "window/FrameMarks.h"

#include "document/SceneDocument.h"
#include "services/HostServices.h"
#include "text/NodeText.h"

#include <xsg/frames/SoFrameLog.h>

namespace scopix
{

FrameMarks::FrameMarks(HostServices& services, const SceneDocument& document, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
    connect(&services.undoStack(), &QUndoStack::indexChanged, this, &FrameMarks::stepsChanged);
    connect(&services, &SpxServices::selectedNodeChanged, this, [](const SoFieldContainer* node) {
        if (node && SoFrameLog::getInstance().isOn())
            mark(tr("Select %1").arg(nodeText(*node)));
    });
    connect(&document, &SceneDocument::rootChanged, this,
            [&document] { mark(tr("Open %1").arg(document.getTitle())); });
}

void FrameMarks::stepsChanged(int index)
{
    const QUndoStack& stack = m_services.undoStack();
    if (index > m_index)
        mark(stack.text(index - 1));
    else if (index < m_index && index < stack.count())
        mark(tr("Undo %1").arg(stack.text(index)));
    m_index = index;
}

void FrameMarks::mark(const QString& text)
{
    SoFrameLog::getInstance().mark(text.toStdString());
}

} // namespace scopix
