// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAction;
class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace scopix
{

class KeyBindings;

/// The page on which the user gives acts other keys. GUI thread only.
class KeysPage : public QWidget
{
    Q_OBJECT

public:
    /// The keys must outlive it.
    explicit KeysPage(KeyBindings& keys, QWidget* parent = nullptr);

signals:
    /// Keys cannot be kept; one sentence.
    void failed(const QString& sentence);

private:
    void fill();
    void showKeys();
    void choose();
    void apply();
    void filter(const QString& text);
    void report(const QString& problem);
    QAction* current() const;

    KeyBindings& m_keys;
    QLineEdit* m_filter;
    QTreeWidget* m_list;
    QKeySequenceEdit* m_key;
    QPushButton* m_set;
    QPushButton* m_clear;
    QPushButton* m_reset;
    QLabel* m_note;
};

} // namespace scopix
