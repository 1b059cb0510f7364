// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxEditor.h>
#include <scopix/editing/SpxEditingExport.h>
#include <scopix/editing/SpxWatcher.h>

#include <QPointer>
#include <QWidget>

/// An editor of fields or nodes, to be derived from: it owns the widget while loaded, watches the edited
/// object while active, and lets it go when it is destroyed. A subclass sets its names and its handled type,
/// builds its inputs, shows the object in refresh() and edits it through SpxFieldEdit. GUI thread only.
class SPX_EDITING_API SpxObjectEditor : public SpxEditor
{
    Q_OBJECT

public:
    ~SpxObjectEditor() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;
    void show() override;
    void hide() override;

protected:
    SpxObjectEditor();

    /// Puts the inputs into the editor's widget; once per load().
    virtual void build(QWidget& widget) = 0;
    /// Shows what edited() holds; never called without it. Must not write it: block the inputs' signals.
    virtual void refresh() = 0;

    /// The edited object as its class; null outside activate() and deactivate(), and from the moment at which
    /// it is being destroyed, so ask each time rather than keep it.
    template <class T>
    T* edited() const
    {
        return dynamic_cast<T*>(m_watcher.getObject());
    }

private:
    void refreshIfEdited();
    void letGo();

    QPointer<QWidget> m_widget; // the editor's own, wherever it is docked
    SpxWatcher m_watcher;
};
