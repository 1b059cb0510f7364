// SPDX-License-Identifier: MIT
// Marks what libScopixExtenderAPI offers to hosts and plug-ins.
#pragma once

#define SPX_API __attribute__((visibility("default")))
