// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <exception>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

/// Runs `act(number)` in this many processes at the same time, which are copies of this one, and waits for
/// them. An act must not use the event loop or threads. Each returns whether all went well.
template <class Act>
void inProcesses(int count, Act act)
{
    std::vector<pid_t> children;
    for (int number = 0; number < count; ++number) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            bool isGood = false;
            try {
                isGood = act(number);
            } catch (const std::exception&) {
                // Not good.
            }
            _exit(isGood ? 0 : 1);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
}
