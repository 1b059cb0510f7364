// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace scopix
{

/// While it lives, timers, sockets and drops reach one dialog alone: whatever else runs by itself in this
/// program stands still, and goes on afterwards. Painting and posted calls come through. GUI thread only.
class OwnEvents : public QObject
{
    Q_OBJECT

public:
    explicit OwnEvents(QWidget& dialog);
    ~OwnEvents() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOwn(QObject* object) const;

    const QPointer<QWidget> m_dialog;
};

} // namespace scopix
