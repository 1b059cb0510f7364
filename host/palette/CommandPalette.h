// SPDX-License-Identifier: MIT
#pragma once

#include "palette/PaletteEntry.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QLineEdit;
class QListView;

namespace scopix
{

class PaletteModel;

/// Finds whatever the window offers by its name, and does it. Opens over the upper part of its window and
/// goes when something else gets the focus. GUI thread only.
class CommandPalette : public QDialog
{
    Q_OBJECT

public:
    explicit CommandPalette(QWidget& window);
    ~CommandPalette() override;

    void addSource(PaletteSource source);
    /// With nothing typed; what the sources offer by now.
    void open() override;
    /// Where it opens from now on, and which window has the focus when it has gone.
    void setWindow(QWidget& window) { m_over = &window; }

    /// What was found elsewhere for the text that is typed by now.
    void setFound(std::vector<PaletteEntry> found);

    QLineEdit& getLine() { return *m_line; }
    PaletteModel& getModel() { return *m_model; }

signals:
    void typed(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void place();
    void type(const QString& text);
    void showFirst();
    void run();

    QWidget& overWindow() const { return m_over ? *m_over : m_window; }

    QWidget& m_window;
    QPointer<QWidget> m_over;
    std::vector<PaletteSource> m_sources;
    PaletteModel* m_model;
    QLineEdit* m_line;
    QListView* m_list;
    QLabel* m_nothing;
};

} // namespace scopix
