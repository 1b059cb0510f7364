// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameRecording.h>

#include <QDialog>

class QTableWidget;

namespace profiler
{

/// Two recordings side by side: for each figure and counter its median before and after, the difference, and
/// whether it is more than chance.
class ComparisonDialog : public QDialog
{
    Q_OBJECT

public:
    ComparisonDialog(const SoFrameRecording& before, const SoFrameRecording& after, QWidget* parent);

private:
    void fill(const SoFrameRecording& before, const SoFrameRecording& after);

    QTableWidget* m_table;
};

} // namespace profiler
