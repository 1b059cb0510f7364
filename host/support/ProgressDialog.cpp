// SPDX-License-Identifier: MIT
#include "support/ProgressDialog.h"

#include <QLabel>

namespace scopix
{

ProgressDialog::ProgressDialog(const QString& what, const QString& name, QWidget& window)
    : QProgressDialog(what, tr("Cancel"), 0, 0, &window)
{
    setObjectName(name);
    for (QLabel* label : findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText); // a file may have any name
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(PatienceMs);
    setAutoClose(false);
    setAutoReset(false);
}

void ProgressDialog::end()
{
    const bool hadKeys = isActiveWindow();
    reset(); // or it opens when its patience ends, where an event loop runs before it is deleted
    hide();
    if (hadKeys)
        parentWidget()->activateWindow();
}

} // namespace scopix
