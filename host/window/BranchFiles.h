// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <QObject>

class QWidget;

namespace scopix
{

class NodeEditing;
class OtherFile;
class UserNotifier;

/// Puts scenes and models from files into the scene that is open, and branches of it into files of their own.
/// Questions open over the window. GUI thread only.
class BranchFiles : public QObject
{
    Q_OBJECT

public:
    /// Owned by the window; the others must outlive it.
    BranchFiles(QWidget& window, NodeEditing& editing, UserNotifier& notifier);

    void askAndInsert();
    void askAndSave();
    /// Reads it, perhaps in the background, and inserts it where something new goes.
    void insert(const QString& path);
    /// False where it cannot be written, which is told.
    bool save(SoNode* branch, const QString& path);

private:
    void inserted(SoNode* root, const QString& path);
    static QString write(SoNode* branch, const QString& path);

    QWidget& m_window;
    NodeEditing& m_editing;
    UserNotifier& m_notifier;
    OtherFile* m_file;
};

} // namespace scopix
