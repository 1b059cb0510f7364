// SPDX-License-Identifier: MIT
#pragma once

/// Takes the place of the program's operator new, to let one allocation fail and to count those that are
/// alive. One thread only.
namespace failing
{

/// Lets the n-th allocation from now on throw std::bad_alloc; 0: none.
void failAllocation(long nth);
/// Those asked for since then.
long allocationsAsked();
/// Those that have not been freed.
long allocationsAlive();

} // namespace failing
