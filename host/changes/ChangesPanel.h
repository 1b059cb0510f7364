// SPDX-License-Identifier: MIT
#pragma once

#include "changes/ChangesModel.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QMenu;
class QSortFilterProxyModel;
class QToolButton;
class QTreeView;

namespace scopix
{

class HostServices;

/// A list of changes with a filter above and what can be done with them below: for the ticked ones, or where
/// none is ticked, for the selected ones (reverting) or for all (showing the values before, patches). Follows
/// its source from the event loop while it is seen. GUI thread only.
class ChangesPanel : public QWidget
{
    Q_OBJECT

public:
    /// The services must outlive it.
    explicit ChangesPanel(HostServices& services, QWidget* parent = nullptr);

    /// It is not owned; null for none.
    void setSource(ChangeSource* source);
    ChangesModel& getModel() const { return *m_model; }
    QTreeView& getView() const { return *m_view; }
    QMenu& getMenu() const { return *m_menu; }
    /// The ticked ones, or all.
    ChangeKeySet getChosen() const;
    /// The ticked ones, or the selected ones.
    ChangeKeySet getMeant() const;
    void startFiltering();

public slots:
    void revert();
    void follow();

signals:
    /// One sentence for the user.
    void said(const QString& sentence);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Filter;

    void makeView();
    void fitPaths();
    void makeButtons();
    void makeMenu();
    void revert(const ChangeKeySet& keys);
    void showBefore(bool on);
    void enter(const ChangeKey& key, const QString& text);
    void select(const QModelIndex& index);
    void toggleSelected();
    ChangeKeySet getSelected() const;
    ChangeKeySet getAll() const;
    ChangeKey keyAt(const QModelIndex& index) const;
    void updateButtons();
    void openMenu(const QPoint& at);
    void edit(int column);

    HostServices& m_services;
    ChangesModel* m_model;
    Filter* m_filter;
    QLineEdit* m_line;
    QLabel* m_heading;
    QTreeView* m_view;
    QMenu* m_menu;
    QToolButton* m_revert;
    QToolButton* m_before;
    bool m_isFollowing = false;
};

} // namespace scopix
