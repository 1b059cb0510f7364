// SPDX-License-Identifier: MIT
#include "app/WindowNavigator.h"

#include "window/HostWindow.h"

#include <xsg/paths/ChildTable.h>

#include <QStatusBar>

namespace scopix
{

namespace
{

template <class Find>
auto findIn(SoNode* root, const QString& text, Find find) -> decltype(find(nullptr, {}))
{
    const SoScenePath path(text.toStdString());
    return root && path.isValid() ? find(root, path) : nullptr;
}

} // namespace

void WindowNavigator::openFile(const QString& path)
{
    m_window.openAnother(path);
}

SoNode* WindowNavigator::findNode(const QString& text) const
{
    return findIn(m_window.sceneRoot(), text, [](SoNode* root, const SoScenePath& path) -> SoNode* {
        SbSentence ignored;
        return path.getField().empty() ? xsg::SceneLookup(root).find(path, ignored) : nullptr;
    });
}

SoField* WindowNavigator::findField(const QString& text) const
{
    return findIn(m_window.sceneRoot(), text, [](SoNode* root, const SoScenePath& path) -> SoField* {
        SbSentence ignored;
        return path.getField().empty() ? nullptr : xsg::SceneLookup(root).findField(path, ignored);
    });
}

void WindowNavigator::addStatusWidget(QWidget* widget)
{
    m_window.statusBar()->addPermanentWidget(widget);
    widget->show();
}

void WindowNavigator::removeStatusWidget(QWidget* widget)
{
    m_window.statusBar()->removeWidget(widget);
    widget->setParent(nullptr);
}

} // namespace scopix
