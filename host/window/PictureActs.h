// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/PictureSeries.h"

#include <QObject>

class QMenu;
class QWidget;

namespace scopix
{

class SceneView;
class UserNotifier;

/// Saving pictures of the 3D view, of any size, and of one turn around it: the entries of a menu, their
/// dialogs and their progress. GUI thread only.
class PictureActs : public QObject
{
    Q_OBJECT

public:
    /// Adds the entries to `menu`, which owns this; all must outlive it. Dialogs open over `window`.
    PictureActs(QMenu& menu, QWidget& window, SceneView& view, UserNotifier& notifier);

    /// Writes over files that are there. False where that fails or is cancelled, which is told.
    bool save(const PictureOrder& order);

private:
    void ask(bool isTurntable);
    bool mayReplace(const PictureOrder& order) const;
    QString describe(const PictureSeries& series, const PictureOrder& order) const;

    QWidget& m_window;
    SceneView& m_view;
    UserNotifier& m_notifier;
};

} // namespace scopix
