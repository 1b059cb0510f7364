// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace scopix
{

class SceneFiles;

/// The file menu, with the recent files. GUI thread only.
class FileMenu : public QObject
{
    Q_OBJECT

public:
    /// Fills `menu`, which owns it; the files must outlive it.
    FileMenu(QMenu& menu, SceneFiles& files);
    QAction* getOpenAction() const { return m_open; }

private:
    void fillRecent();
    void openRecent(const QString& path);

    SceneFiles& m_files;
    QAction* m_open;
    QMenu* m_recent;
};

} // namespace scopix
