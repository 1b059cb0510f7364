// SPDX-License-Identifier: MIT
#include "window/FrameMarks.h"

#include "services/HostServices.h"
#include "text/NodeText.h"
#include "window/SceneFiles.h"

#include <xsg/frames/SoFrameLog.h>

namespace scopix
{

FrameMarks::FrameMarks(HostServices& services, const SceneFiles& files, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
    connect(&services.history(), &UndoHistory::acted, this, &FrameMarks::stepsChanged);
    connect(&services, &SpxServices::selectedNodeChanged, this, [](const SoFieldContainer* node) {
        if (node && SoFrameLog::getInstance().isOn())
            mark(tr("Select %1").arg(nodeText(*node)));
    });
    connect(&files.getScenes(), &OpenScenes::rootChanged, this, [this, &files] {
        m_index = m_services.undoStack().index();
        mark(tr("Open %1").arg(files.getDocument().getTitle()));
    });
}

void FrameMarks::stepsChanged()
{
    const QUndoStack& stack = m_services.undoStack();
    const int index = stack.index();
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
