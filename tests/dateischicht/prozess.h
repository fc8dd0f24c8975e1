// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Running test code in a child process: with a time limit (a hang fails instead of blocking the test run),
// as another user (root reads every file, so unreadable files need one), or to be killed.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <thread>

namespace fuh::test {

// Starts `f` in a child; the child exits 0 when `f` recorded no test failure.
inline pid_t kindStarten(const std::function<void()>& f) {
    const pid_t pid = ::fork();
    if (pid == 0) {
        f();
        ::_exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    return pid;
}

// Waits for the child at most `frist`; a child still running then is killed. True when it ended cleanly.
inline bool kindAbwarten(pid_t pid, std::chrono::milliseconds frist) {
    const auto ende = std::chrono::steady_clock::now() + frist;
    int status = 0;
    while (::waitpid(pid, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > ende) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, &status, 0);
            ADD_FAILURE() << "still running after " << frist.count() << " ms";
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Runs `f` in a child with a time limit, as the unprivileged user `nobody` when the tests run as root
// (the folder is opened to it first).
inline bool imKind(const std::function<void()>& f, const std::filesystem::path& ordner = {},
                   std::chrono::milliseconds frist = std::chrono::seconds(10)) {
    return kindAbwarten(kindStarten([&] {
                            if (::geteuid() == 0 && !ordner.empty()) {
                                std::filesystem::permissions(ordner, std::filesystem::perms::all);
                                if (::setgid(65534) != 0 || ::setuid(65534) != 0) ::_exit(3);
                            }
                            f();
                        }),
                        frist);
}

} // namespace fuh::test
