// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/PictureSeries.h"

#include <QObject>

#include <functional>

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
    /// `viewInUse` tells whose pictures the entries save.
    using ViewInUse = std::function<SceneView&()>;
    PictureActs(QMenu& menu, QWidget& window, ViewInUse viewInUse, UserNotifier& notifier);

    /// Writes over files that are there. False where that fails or is cancelled, which is told.
    bool save(const PictureOrder& order, SceneView& view);

private:
    void ask(bool isTurntable);
    bool mayReplace(const PictureOrder& order) const;
    QString describe(const PictureSeries& series, const PictureOrder& order) const;

    QWidget& m_window;
    ViewInUse m_viewInUse;
    UserNotifier& m_notifier;
};

} // namespace scopix
