// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

namespace scopix
{

/// Runs a callback in a coming turn of the event loop, once no modal dialog is open. Asked again before it
/// ran, it still runs once. GUI thread only.
class DeferredUntilNonModal : public QObject
{
    Q_OBJECT

public:
    explicit DeferredUntilNonModal(std::function<void()> callback, QObject* parent = nullptr);

    void request();
    /// Runs now what was requested; nothing otherwise.
    void runNow();
    void cancel();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    void post();
    void waitForDialog(bool wait);

    std::function<void()> m_callback;
    bool m_requested = false;
    bool m_waits = false;
};

} // namespace scopix
