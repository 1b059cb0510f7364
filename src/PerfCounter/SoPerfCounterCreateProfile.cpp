// SPDX-License-Identifier: MIT
#include "SoPerfCounterCreateProfile.h"

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
    emit createdNewProfile(m_name->text());
    close();
}
