#include "hwknobs_dtc/child_process.h"

#include <cstdio>

namespace {

void set_disposition(int signal, void (*handler)(int), struct sigaction* old = nullptr) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigaction(signal, &action, old);
}

void reset_signals() {
    for (int signal = 1; signal < NSIG; ++signal) set_disposition(signal, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

}  // namespace

bool open_pipe(pipe_ends& ends) {
    int fds[2];
    if (pipe(fds) != 0) return false;
    ends.read.reset(fds[0]);
    ends.write.reset(fds[1]);
    return true;
}

pid_t fork_child() {
    std::fflush(stdout);
    const pid_t pid = fork();
    if (pid == 0) reset_signals();
    return pid;
}

child_signals::child_signals() {
    set_disposition(SIGPIPE, SIG_IGN, &old_pipe_);
    set_disposition(SIGCHLD, SIG_DFL, &old_child_);
}

child_signals::~child_signals() {
    sigaction(SIGPIPE, &old_pipe_, nullptr);
    sigaction(SIGCHLD, &old_child_, nullptr);
}
