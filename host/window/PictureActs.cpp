// SPDX-License-Identifier: MIT
#include "window/PictureActs.h"

#include "support/ProgressDialog.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "viewport/Screenshot.h"
#include "window/PictureDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

#include <optional>

namespace scopix
{

namespace
{

/// Nothing in the scene moves with time while this lives.
class StandStill
{
public:
    explicit StandStill(SceneView& view)
        : m_view(view)
        , m_wasAnimated(view.isAnimated())
    {
        view.setAnimated(false);
    }
    StandStill(const StandStill&) = delete;
    StandStill& operator=(const StandStill&) = delete;
    ~StandStill() { m_view.setAnimated(m_wasAnimated); }

private:
    SceneView& m_view;
    bool m_wasAnimated;
};

} // namespace

PictureActs::PictureActs(QMenu& menu, QWidget& window, ViewInUse viewInUse, UserNotifier& notifier)
    : QObject(&menu)
    , m_window(window)
    , m_viewInUse(std::move(viewInUse))
    , m_notifier(notifier)
{
    menu.addAction(
            tr("Save &Picture…"), this, [this] { ask(false); }, Qt::Key_F12)
        ->setObjectName(QStringLiteral("savePictureAction"));
    menu.addAction(
            tr("Save &Turntable…"), this, [this] { ask(true); }, Qt::SHIFT + Qt::Key_F12)
        ->setObjectName(QStringLiteral("saveTurntableAction"));
}

void PictureActs::ask(bool isTurntable)
{
    SceneView& view = m_viewInUse();
    PictureDialog dialog(view.size() * view.devicePixelRatioF(), isTurntable, &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    PictureOrder order = dialog.getOrder();
    const QString title = isTurntable ? tr("Save Turntable") : tr("Save Picture");
    // Which files are replaced by several pictures is asked for afterwards.
    const auto options = isTurntable ? QFileDialog::DontConfirmOverwrite : QFileDialog::Options();
    order.path = QFileDialog::getSaveFileName(&m_window, title, QStringLiteral("scopix.png"),
                                              tr("Pictures (*.%1)").arg(pictureExtensions().join(" *.")),
                                              nullptr, options);
    if (!order.path.isEmpty() && (!isTurntable || mayReplace(order)))
        save(order, view);
}

bool PictureActs::mayReplace(const PictureOrder& order) const
{
    int there = 0;
    for (const QString& path : order.getPaths())
        there += QFileInfo::exists(path) ? 1 : 0;
    if (there == 0)
        return true;
    return QMessageBox::question(
               &m_window, tr("Save Turntable"),
               tr("%n of these pictures are there already in “%1”. Replace them?", nullptr, there)
                   .arg(QDir::toNativeSeparators(QFileInfo(order.path).absolutePath()))) == QMessageBox::Yes;
}

bool PictureActs::save(const PictureOrder& order, SceneView& view)
{
    settleForPicture();
    const StandStill still(view);
    const bool isAttended = m_notifier.isAttended();
    std::optional<ProgressDialog> dialog;
    if (isAttended) {
        dialog.emplace(tr("Drawing…"), QStringLiteral("pictureProgress"), m_window);
        dialog->setWindowTitle(tr("Save Picture"));
    }
    const PictureSeries series = PictureSeries::make(
        view.getPictureSubject(order.size, order.count > 1), order, [&](int done, int total) {
            if (!dialog)
                return true;
            dialog->setMaximum(total);
            dialog->setValue(done); // delivers events, such as a click on its button
            return !dialog->wasCanceled();
        });
    if (dialog)
        dialog->end();
    if (!series.problem.isEmpty())
        m_notifier.error(series.problem);
    else if (isAttended)
        m_notifier.info(describe(series, order));
    return series.problem.isEmpty() && !series.isCancelled;
}

QString PictureActs::describe(const PictureSeries& series, const PictureOrder& order) const
{
    if (series.isCancelled)
        return series.written == 0
                   ? tr("Cancelled; no picture was written.")
                   : tr("Cancelled; of %1 pictures, %2 were written.").arg(order.count).arg(series.written);
    const QString first = QDir::toNativeSeparators(order.getPaths().first());
    return order.count == 1 ? tr("Saved “%1”.").arg(first)
                            : tr("Saved %1 pictures, the first being “%2”.").arg(order.count).arg(first);
}

} // namespace scopix
