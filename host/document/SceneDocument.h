// SPDX-License-Identifier: MIT
#pragma once

#include "document/FileStamp.h"

#include <xsg/nodes/base/SoNode.h>

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class SoTexture2;

namespace scopix
{

class HostPreview;
class HostServices;
class UndoShelf;

/// What is open: the scene, the file it came from, and whether it holds edits that no file has. Of several
/// documents one is in front; selection and undo history are of that one, and only that one is opened, edited
/// and saved. GUI thread only.
class SceneDocument : public QObject
{
    Q_OBJECT

public:
    /// `services` must outlive the document, which is in front: another one must have left before.
    explicit SceneDocument(HostServices& services);
    ~SceneDocument() override;

    /// Puts away what can be undone, clears the selection, and shows the present values, for another document
    /// to be in front.
    void leave();
    /// Is in front again. The one that was before must have left.
    void enter();
    bool isInFront() const { return m_isInFront; }

    /// The suffixes of scene files and of everything that can be opened, in lower case.
    static QString sceneEnding();
    static QStringList fileExtensions();

    enum class FileState { AsOpened, Changed, Deleted };

    /// Opens another scene in place of the one before, and clears selection and history. `path` is the scene
    /// file or model it came from, or empty; `title` names it; `stamp` is that of the file before it was
    /// read, otherwise that of now. `textures` are all textures in it, where the caller knows them: a large
    /// scene need not be searched then.
    void begin(SoNode* root, const QString& path, const QString& title,
               const std::optional<FileStamp>& stamp = {},
               const std::vector<SoTexture2*>* textures = nullptr);
    /// As begin(), with edits that are in no file.
    void beginModified(SoNode* root, const QString& path, const QString& title,
                       const std::optional<FileStamp>& stamp = {});

    /// As begin(), with a scene that belongs to the application around the host. It is never modified in the
    /// sense of isModified(), and saving writes a copy of it.
    void beginExternal(SoNode* root, const QString& title);
    bool isExternal() const { return m_isExternal; }

    SoNode* getRoot() const { return m_root.get(); }
    /// Absolute, or empty.
    const QString& getPath() const { return m_path; }
    const QString& getTitle() const { return m_title; }
    /// True when it came from a scene file or was saved as one, so that saving needs no name.
    bool hasSceneFile() const;

    /// What other programs have done to the file since it was opened or saved, as far as checkFile() has
    /// seen.
    FileState getFileState() const { return m_fileState; }
    /// Looks at the file now.
    FileState checkFile();

    /// There are edits since it was opened or saved that undoing has not taken back.
    bool isModified() const;
    /// Grows with every edit, undo and redo.
    quint64 getEditCount() const { return m_editCount; }

    /// What the user compares by eye in it, which is no part of it.
    HostPreview& preview() const;

    /// Saves it as a scene file, which becomes its path. The file is either the old or the new one, whatever
    /// happens. An external scene stays external, and the names of its pictures stay as they are. Returns one
    /// sentence where it cannot be written, else an empty text. LongWork may cancel it.
    QString save(const QString& path);

signals:
    /// The views are to show this root; the one before is alive until all have been notified.
    void rootChanged(SoNode* root);
    void edited();
    /// Path, title, the modified state or that of the file.
    void stateChanged();

private:
    void acted();
    void replaceRoot(SoNode* root, bool isExternal);
    void adoptFile(const QString& path);
    void setState(const QString& path, const QString& title, const std::optional<FileStamp>& stamp = {});

    HostServices& m_services;
    SoRef<SoNode> m_root;
    bool m_isExternal = false;
    QString m_path;
    QString m_title;
    FileStamp m_stamp;
    FileState m_fileState = FileState::AsOpened;
    quint64 m_editCount = 0;
    bool m_isInFront = true;
    std::shared_ptr<UndoShelf> m_shelf; // while it is not
};

} // namespace scopix
