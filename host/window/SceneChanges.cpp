// SPDX-License-Identifier: MIT
#include "window/SceneChanges.h"

#include "changes/ChangesPanel.h"
#include "changes/SceneEdits.h"
#include "document/SceneDocument.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>

namespace scopix
{

SceneChanges::SceneChanges(QMainWindow& window, HostServices& services, SceneDocument& document,
                           UserNotifier& notifier)
    : QObject(&window)
    , m_window(window)
    , m_services(services)
    , m_document(document)
    , m_notifier(notifier)
    , m_edits(new SceneEdits(services.history(), this))
    , m_panel(new ChangesPanel(services))
    , m_count(new QToolButton)
{
    m_edits->setHold([&services] { return services.preview().isShowingFormer(); });
    m_panel->setSource(m_edits);
    m_count->setObjectName(QStringLiteral("changesCount"));
    m_count->setAutoRaise(true);
    m_count->setToolTip(tr("What you have changed since the scene was opened"));
    m_count->hide();
    window.statusBar()->addPermanentWidget(m_count);
    connect(m_count, &QToolButton::clicked, this, &SceneChanges::show);
    connect(m_panel, &ChangesPanel::said, &notifier, &UserNotifier::info);
    connect(m_edits, &ChangeSource::changed, this, &SceneChanges::follow);
    connect(&services.preview(), &HostPreview::formerShown, m_edits, &ChangeSource::changed);
    connect(&document, &SceneDocument::rootChanged, this, &SceneChanges::start);
    m_panel->getMenu().addAction(tr("&Start Again from Here"), this, &SceneChanges::start);
}

SceneChanges::~SceneChanges() = default;

void SceneChanges::setDock(QDockWidget* dock)
{
    m_dock = dock;
}

void SceneChanges::show()
{
    m_dock->show();
    m_dock->raise();
    m_panel->getView().setFocus();
}

void SceneChanges::start()
{
    m_edits->begin(m_document.getRoot(), tr("the scene as it was opened"));
}

void SceneChanges::follow()
{
    m_edits->update();
    const int count = static_cast<int>(m_edits->list().size());
    m_count->setText(count == 1 ? tr("1 change") : tr("%L1 changes").arg(count));
    m_count->setVisible(count > 0);
    if (m_dock) {
        m_dock->setWindowTitle(count > 0 ? tr("Changes ●") : tr("Changes"));
        m_dock->toggleViewAction()->setText(tr("Changes"));
    }
    emit changed();
}

} // namespace scopix
