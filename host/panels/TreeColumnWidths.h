// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <QVariantMap>

#include <functional>

namespace scopix
{

class SceneTreeView;

/// How wide the columns of the scene's tree are. Name and type share what the others leave: in the proportion
/// that the user has given them, however wide the tree becomes, or else as the rows in sight need it. Owned
/// by the tree. GUI thread only.
class TreeColumnWidths : public QObject
{
    Q_OBJECT

public:
    explicit TreeColumnWidths(SceneTreeView& tree);

    void fit();
    /// Changes which columns there are, which the header answers by widths that nobody has chosen; then
    /// fit().
    void fitAfter(const std::function<void()>& change);
    /// What the user chose, by the keys of the columns: of "node" the share, of others the width in pixels.
    const QVariantMap& getChosen() const { return m_chosen; }
    void setChosen(const QVariantMap& chosen);

signals:
    /// By the user; many times while a column is dragged.
    void chosen();

private:
    int widthOf(int column) const;
    double chosenShare() const; // of the names; 0 where the user has chosen none
    int widthOfType(int both) const;
    void resized(int column, int width);
    bool isLast(int column) const;

    SceneTreeView& m_tree;
    QVariantMap m_chosen;
    QTimer m_later;
    bool m_isFitting = false;
};

} // namespace scopix
