// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

#include <functional>

class QWidget;
class SoNode;

namespace scopix
{

class ProgressDialog;

/// What the user waits for, on the GUI thread. While it lives, the work calls goOn() wherever it has done a
/// piece: as soon as it takes noticeable time, a dialog over the window says how far it is and can cancel it,
/// and the window goes on drawing; nothing else in it can be used.
///
///     const bool isDone = LongWork::run(&window, tr("Saving “%1”…").arg(name), [&] { write(); });
///
/// Widgets and events are looked at in goOn() alone. Work may stand inside other work: then the outer one
/// shows its dialog. GUI thread only; on other threads, and where there is no such work, goOn() does nothing.
class LongWork
{
public:
    /// Leaves the work from within goOn().
    struct Cancelled {
    };

    /// False where the user cancelled it. Without a window nobody is asked.
    static bool run(QWidget* window, const QString& what, const std::function<void()>& work);
    /// The same for work that needs the scene to stand still: no input, timer or socket but the dialog's own
    /// is served meanwhile. Where something else changes the scene all the same, as a call that was posted
    /// may, the work starts again from its beginning, and nothing is served any more.
    static bool runStill(QWidget* window, const QString& what, SoNode* scene,
                         const std::function<void()>& work);

    /// How long the user waits before the dialog comes, and the work until it looks at events again.
    static void setPatience(int dialogMs, int eachMs);

    /// `part`: how much of it is done, from 0 to 1; negative where nobody knows.
    static void goOn(double part = -1);

private:
    LongWork(QWidget& window, const QString& what);
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    void serve();
    void look(double part);
    void openDialog();

    QWidget& m_window;
    const QString m_what;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sinceLook;
    QPointer<ProgressDialog> m_dialog;
    const SoNode* m_still = nullptr; // the scene that must not change
};

} // namespace scopix
