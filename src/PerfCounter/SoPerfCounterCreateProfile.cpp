// SPDX-License-Identifier: MIT
#include "SoPerfCounterCreateProfile.h"

#include "ProfileText.h"

#include <QMessageBox>

SoPerfCounterCreateProfile::SoPerfCounterCreateProfile(QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    connect(m_buttonBox, &QDialogButtonBox::accepted, this, &SoPerfCounterCreateProfile::okButtonAction);
    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &QWidget::close);
}

void SoPerfCounterCreateProfile::okButtonAction()
{
    const QString refusal = profileText::refusal(tr("The name"), m_name->text());
    if (!refusal.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), refusal);
        return;
    }
    emit createdNewProfile(m_name->text());
    close();
}
