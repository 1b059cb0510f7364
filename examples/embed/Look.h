// SPDX-License-Identifier: MIT
#pragma once

/// Gives the application a style, colours and a font that are not the inspector's.
void applyLook();
