// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ClipBar.h"
#include "viewport/MeasureTool.h"
#include "viewport/SelectTool.h"
#include "viewport/SelectionMeasure.h"
#include "viewport/SizeBoxTool.h"

#include <QObject>

class QAction;
class QMenu;

namespace scopix
{

class HostServices;
class SceneView;
class UserNotifier;

/// What can be done in the 3D view beside moving around: selecting, measuring, and showing the scene in other
/// ways; with the entries of the View menu for it. GUI thread only.
class ViewActs : public QObject
{
    Q_OBJECT

public:
    /// Adds its entries to `menu`. `tree` is where the view's single-letter keys act, too. All must outlive
    /// it.
    ViewActs(QMenu& menu, SceneView& view, QWidget& tree, HostServices& services, UserNotifier& notifier);
    ~ViewActs() override;

private:
    void makeShadingMenu(QMenu& menu);
    void makeToneMappingMenu(QMenu& menu);
    void makeShowMenu(QMenu& menu);
    void makeMeasureAction(QMenu& menu, QWidget& tree);
    void clicked(const SoPath& toShape);
    void remember(const QString& key, const QVariant& value);

    SceneView& m_view;
    UserNotifier& m_notifier;
    SelectionMeasure m_selectionMeasure;
    MeasureTool m_measure;
    SizeBoxTool m_sizeBox;
    SelectTool m_select;
    ClipBar* m_clipBar; // the view's
};

} // namespace scopix
