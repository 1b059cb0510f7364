// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressDialog>

namespace scopix
{

/// Says over a window what is being done, and offers to cancel it; nothing else in that window can be used
/// meanwhile. Belongs to the window. GUI thread only.
class ProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    /// Before one opens by itself.
    static constexpr int PatienceMs = 300;

    ProgressDialog(const QString& what, const QString& name, QWidget& window);

    /// Closes it for good. The keys go to the window again, also where no window manager sees to that.
    void end();
};

} // namespace scopix
