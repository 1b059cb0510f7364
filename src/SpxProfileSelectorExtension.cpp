// SPDX-License-Identifier: MIT
#include "SpxProfileSelectorExtension.h"

#include <scopix/SpxPluginsManager.h>
#include <scopix/SpxShell.h>

#include <QComboBox>
#include <QToolBar>

SpxProfileSelectorExtension::SpxProfileSelectorExtension()
{
    setName("Profile Selector");
    setDescription("A toolbar to select the active profile.");
    setVendor("Arvex");
    setVersion("1.0.0");
}

void SpxProfileSelectorExtension::load()
{
    m_toolBar = new QToolBar;
    m_toolBar->setWindowTitle(tr("Profile Selector"));
    m_comboBox = new QComboBox(m_toolBar);
    m_comboBox->setToolTip(tr("Select the active profile."));
    m_toolBar->addWidget(m_comboBox);
}

void SpxProfileSelectorExtension::unload()
{
    delete m_comboBox;
    delete m_toolBar;
    m_comboBox = nullptr;
    m_toolBar = nullptr;
}

void SpxProfileSelectorExtension::activate()
{
    const SpxPluginsManager* manager = SpxPluginsManager::getInstance();
    m_comboBox->clear();
    const int position = fill(manager->getProfilesList(), manager->getActiveProfile());
    // Before the signal is connected: showing the active profile does not choose it.
    m_comboBox->setCurrentIndex(position);
    connect(m_comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SpxProfileSelectorExtension::s_currentIndexChanged);

    SpxShell::getInstance()->addToolBar(m_toolBar, Qt::TopToolBarArea);
    SpxShell::getInstance()->attachExtension(this, true);
    show();
    SpxExtension::activate(); // last (decisions.md: selector-active-last)
}

void SpxProfileSelectorExtension::deactivate()
{
    SpxExtension::deactivate();
    disconnect(m_comboBox, nullptr, this, nullptr);
    SpxShell::getInstance()->removeToolBar(m_toolBar);
    SpxShell::getInstance()->detachExtension(this);
}

void SpxProfileSelectorExtension::show()
{
    SpxExtension::show();
    m_toolBar->setVisible(true);
}

void SpxProfileSelectorExtension::hide()
{
    SpxExtension::hide();
    m_toolBar->setVisible(false);
}

void SpxProfileSelectorExtension::s_currentIndexChanged(int index)
{
    SpxPluginsManager* manager = SpxPluginsManager::getInstance();
    const QList<SpxProfile*> profiles = manager->getProfilesList();
    for (int position = 0; position < profiles.size(); ++position) {
        // All names once more, until the next activate() (decisions.md: selector-appends).
        appendProfile(*profiles[position]);
        if (position == index)
            manager->setActiveProfile(profiles[position]);
    }
}

void SpxProfileSelectorExtension::appendProfile(const SpxProfile& profile)
{
    m_comboBox->addItem(QString::fromLatin1(profile.getName().getString()));
}

// The position of the active profile, -1 when it is not among them.
int SpxProfileSelectorExtension::fill(const QList<SpxProfile*>& profiles, const SpxProfile* active)
{
    int position = -1;
    for (int i = 0; i < profiles.size(); ++i) {
        appendProfile(*profiles[i]);
        if (profiles[i] == active)
            position = i;
    }
    return position;
}
