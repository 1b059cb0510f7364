// SPDX-License-Identifier: MIT
// The versions that a plug-in is compiled against.
#pragma once

/// Of Scopix as a whole. The build, the packages and the manual read it from here.
#define SPX_SCOPIX_VERSION "1.0.0"

/// Of the contract between host and plug-ins, which is all that decides whether a plug-in fits. The first
/// number grows when a plug-in has to be compiled again (a virtual function, a base class or a member of an
/// installed class changed), the second when something was added that older plug-ins can do without.
#define SPX_CONTRACT_VERSION "4.0"
