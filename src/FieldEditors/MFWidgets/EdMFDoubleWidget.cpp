#include "EdMFDoubleWidget.h"

EdMFDoubleWidget::EdMFDoubleWidget(const char* name)
    : EdMFRealWidget(name)
{
}
