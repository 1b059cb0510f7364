#include "SoPerfCounterPage.h"

SoPerfCounterPage::SoPerfCounterPage(QWidget* parent)
    : QWidget(parent)
{
    setupUi(this);
}
