// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;
class QCheckBox;
class QMenu;
class SoFieldContainer;

namespace inspector
{

class FieldPanel;

/// The context menu of a panel's node, wherever the panel has no row; and the panel's own actions, which the
/// menus of its rows show too. Owned by the panel. GUI thread only.
class NodeMenu : public QObject
{
    Q_OBJECT

public:
    NodeMenu(FieldPanel& panel, QCheckBox& onlyChanged);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    SoFieldContainer* node() const;
    void open(const QPoint& where);
    void addCopies(QMenu& menu);
    void addChanges(QMenu& menu);
    void addGuide(QMenu& menu);
    void paste();
    void resetAll();
    void keepAsDefaults();
    void say(const QString& sentence) const;

    FieldPanel& m_panel;
};

} // namespace inspector
