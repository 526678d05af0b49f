// Starting a child process: pipes, fork, signals.
#pragma once

#include "hwknobs_base/unique_fd.h"

#include <sys/types.h>

#include <csignal>

struct pipe_ends {
    unique_fd read;
    unique_fd write;
};

/// Opens a pipe; false (see errno) when that fails.
bool open_pipe(pipe_ends& ends);

/// fork(), with standard output flushed before, so that no line is printed by both processes. The child starts with
/// default signal dispositions, whatever the caller of the tool left ignored.
pid_t fork_child();

/// While one lives, writing to a child that is gone gives EPIPE instead of death by SIGPIPE, and children can be
/// waited for even when the tool was started with SIGCHLD ignored. Only then: SIGPIPE on standard output should
/// still end the tool quietly.
class child_signals {
public:
    child_signals();
    ~child_signals();
    child_signals(const child_signals&) = delete;
    child_signals& operator=(const child_signals&) = delete;

private:
    struct sigaction old_pipe_ {};
    struct sigaction old_child_ {};
};
