// SPDX-License-Identifier: MIT
#include "SpxPreviewServices.h"

namespace
{

SpxPreviewServices* s_instance = nullptr;

} // namespace

SpxPreviewServices::SpxPreviewServices()
{
    s_instance = this;
}

SpxPreviewServices::~SpxPreviewServices()
{
    if (s_instance == this)
        s_instance = nullptr;
}

SpxPreviewServices* SpxPreviewServices::getInstance()
{
    return s_instance;
}
