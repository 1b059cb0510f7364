// SPDX-License-Identifier: MIT
#include <xsg/core/SoWriteRecorder.h>

std::atomic<SoWriteRecorder*> SoWriteRecorder::s_active{nullptr};

SoWriteRecorder::SoWriteRecorder() = default;

SoWriteRecorder::~SoWriteRecorder()
{
    SoWriteRecorder* self = this;
    s_active.compare_exchange_strong(self, nullptr);
}

SoWriteRecorder* SoWriteRecorder::setActive(SoWriteRecorder* recorder)
{
    return s_active.exchange(recorder);
}
