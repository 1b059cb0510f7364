// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;
class SoNode;

namespace scopix
{

class SceneFinder;

/// Where the user types what to look for in the scene: shows how much was found and goes from one to the
/// next. Knows no tree; who owns it connects it to one.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// The finder must outlive the bar.
    explicit FindBar(SceneFinder& finder, QWidget* parent = nullptr);

    /// Puts the focus into the line, its text selected.
    void focusLine();
    void setText(const QString& query);
    bool isFiltering() const;

signals:
    /// The first one that a new text finds: to be shown, not selected.
    void firstFound(SoNode* node);
    /// The user goes to it.
    void chosen(SoNode* node);
    /// Only what is found is to be shown, or all again.
    void filterToggled(bool on);
    /// The user has finished with the line.
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeButtons();
    QToolButton* addButton(const QString& icon, const QString& name, const QString& toolTip);
    void textChanged(const QString& text);
    void foundChanged();
    void showCount();
    void goTo(int step);
    bool lineKey(int key, Qt::KeyboardModifiers modifiers);

    SceneFinder& m_finder;
    QLineEdit* m_line;
    QLabel* m_count;
    QLabel* m_error;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    QToolButton* m_filter = nullptr;
    const SoNode* m_current = nullptr; // among what was found; compared only
    bool m_showsFirst = false;         // as soon as there is one
};

} // namespace scopix
