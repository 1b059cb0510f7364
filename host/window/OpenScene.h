// SPDX-License-Identifier: MIT
#pragma once

#include "changes/SceneEdits.h"
#include "document/Autosave.h"
#include "document/FileWatch.h"
#include "document/SceneDocument.h"

#include <xsg/actions/SoPath.h>
#include <xsg/values/SbName.h>

#include <QList>
#include <QObject>

namespace scopix
{

class HostServices;

/// One thing that is open in the window, a scene or a program that is attached to: its document, what keeps
/// its unsaved edits, what watches its file, what was changed in it, and, while another one is in front, what
/// is selected in it. Owned by OpenScenes. GUI thread only.
class OpenScene : public QObject
{
    Q_OBJECT

public:
    /// Is in front; the services must outlive it.
    explicit OpenScene(HostServices& services);

    SceneDocument& getDocument() { return m_document; }
    const SceneDocument& getDocument() const { return m_document; }
    Autosave& getAutosave() { return m_autosave; }
    SceneEdits& getEdits() { return m_edits; }

    /// Nobody has opened anything here, nor edited.
    bool isUntouched() const;
    /// The scene as it is now is what changes are told from.
    void startChanges();
    /// Unsaved edits are kept from now on, and the file is watched.
    void startKeeping();
    /// Another one comes to the front.
    void leave();
    /// Is in front again; what was selected is to be selected again once the scene shows.
    void enter();
    void selectAgain();

signals:
    /// Another scene was opened in the document.
    void replaced();

private:
    void watchFile();

    HostServices& m_services;
    SceneDocument m_document;
    Autosave m_autosave;
    FileWatch m_watch;
    SceneEdits m_edits;
    QList<SoPath> m_selected;
    SbName m_field;
    bool m_isKeeping = false;
};

} // namespace scopix
