// The colours that curves and bars begin with.
#pragma once

#include <QColor>

#include <functional>

// A random colour, each of whose components is 0, 85, 127, 170 or 255: one that can be seen on white and is
// not used yet, as long as there is any.
QColor randomCurveColor(const std::function<bool(const QColor&)>& isUsed);
