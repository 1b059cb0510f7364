// SPDX-License-Identifier: MIT
#pragma once

#include "console/LogSettings.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;
class QSpinBox;

namespace profiler
{

class LogFind;
class LogModel;
class LogView;

/// The content of the dock "Log": what is shown at the top, the lines, and a line to find in them. GUI thread
/// only.
class LogPanel : public QWidget
{
    Q_OBJECT

public:
    /// The model must outlive it.
    explicit LogPanel(LogModel& model, QWidget* parent = nullptr);
    ~LogPanel() override;

    /// Shows the line whatever the filter is.
    void goToLine(std::uint64_t line);
    void openFind();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeTools();
    QWidget* makeFindBar();
    QMenu* makeOptions();
    void addFolding(QMenu& menu);
    QCheckBox* makeKind(LogKind kind, const QString& caption);
    void applyRule();
    void keepPlace(std::uint64_t line);
    void showCounts();
    void showFound();
    void find(bool forward);
    void closeFind();
    void activateLine(int row);
    void openMenu(const QPoint& place);
    void say(const QString& sentence);
    bool takeKey(QObject* watched, const QKeyEvent& key);

    LogModel& m_model;
    LogSettings m_settings;
    LogFind* m_find;
    LogView* m_view;
    QLineEdit* m_filter = nullptr;
    QCheckBox* m_kinds[LogKinds] = {};
    QSpinBox* m_context = nullptr;
    QLabel* m_counts;
    QWidget* m_findBar = nullptr;
    QLineEdit* m_wanted = nullptr;
    QLabel* m_found = nullptr;
    bool m_keepsPlace = false;
    std::uint64_t m_place = 0; // line
};

} // namespace profiler
