// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLabel;

namespace scopix
{

class SceneDocument;
class SceneFiles;

/// Says at the top of the view that another program has changed the file that is shown, and offers to reload
/// it, as long as nothing is edited; interrupts nobody. GUI thread only.
class ReloadBar : public QFrame
{
    Q_OBJECT

public:
    /// Lies over `view`, which owns it. The files must outlive it, or be destroyed with the same window.
    ReloadBar(SceneFiles& files, QWidget& view);

signals:
    /// With the file as it is now.
    void compareRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();
    void dismiss();
    void place();

    SceneFiles& m_files;
    QWidget& m_view;
    QLabel* m_text;
    const SceneDocument* m_dismissed = nullptr; // until its file is as it was opened
};

} // namespace scopix
