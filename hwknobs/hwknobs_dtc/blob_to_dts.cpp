// Runs the compiler through the shell, with the blob on its standard input, and takes the source from its standard
// output. The blob is written at once and the output read only after the child's end, so both have to fit into the
// pipes: these are made as large as the system grants, which is more than the largest blob and its source take.
#include "hwknobs_base/malloced.h"
#include "hwknobs_dtc/child_process.h"
#include "hwknobs_dtc/dt_compiler.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr const char* compiler_options = " -Wno-unit_address_vs_reg -I dtb -O dts - 2>/dev/null";
constexpr std::size_t read_size = 4096;

// What an unprivileged process may ask for where nobody changed /proc/sys/fs/pipe-max-size.
constexpr int pipe_size_wanted = 1 << 20;

char* fail(const char* message) {
    std::perror(message);
    return nullptr;
}

// A user who has many pipes open may be granted less than the usual 1 MiB: takes the most there is.
void enlarge_pipe(const unique_fd& end) {
    const int current = fcntl(end.get(), F_GETPIPE_SZ);
    if (current < 0) return;
    for (int size = pipe_size_wanted; size > current; size /= 2)
        if (fcntl(end.get(), F_SETPIPE_SZ, size) != -1) return;
}

// In the child, which leaves with _exit() where it fails: it must not go on as a second parent, whose output would be
// taken for the source. The empty source then tells the parent.
[[noreturn]] void run_shell(pipe_ends& in, pipe_ends& out) {
    out.read.reset();
    in.write.reset();
    if (dup2(out.write.get(), STDOUT_FILENO) == -1) _exit(1);
    out.write.reset();
    if (dup2(in.read.get(), STDIN_FILENO) == -1) _exit(1);
    std::array<char, 256> command{};
    std::strncpy(command.data(), hwknobs_dt_compiler(), command.size() - 1);
    std::strncat(command.data(), compiler_options, command.size() - 1 - std::strlen(command.data()));
    char shell[] = "/bin/sh";
    char run_command[] = "-c";
    char* const argv[] = {shell, run_command, command.data(), nullptr};
    execvp(shell, argv);
    std::perror("execvp error");
    _exit(1);
}

char* collect_source(const unique_fd& out) {
    std::size_t capacity = read_size;
    std::size_t size = 0;
    malloced<char> text(static_cast<char*>(std::malloc(capacity)));
    if (text == nullptr) return fail("alloc buffer error");
    for (;;) {
        const ssize_t n = read(out.get(), text.get() + size, capacity - size);
        if (n < 1) break;
        size += static_cast<std::size_t>(n);
        if (size + read_size > capacity) {
            capacity *= 2;
            auto* const larger = static_cast<char*>(std::realloc(text.get(), capacity));
            if (larger == nullptr) return fail("realloc buffer error");
            static_cast<void>(text.release());
            text.reset(larger);
        }
        if (capacity - size < 1) return fail("buffer size underflow");
    }
    text.get()[size] = '\0';
    return text.release();
}

}  // namespace

char* hwknobs_blob_to_dts(const char* blob, long length) {
    pipe_ends out;
    pipe_ends in;
    if (!open_pipe(out) || !open_pipe(in)) return fail("create pipe error");
    enlarge_pipe(out.write);
    enlarge_pipe(in.write);

    const child_signals signals;
    const pid_t child = fork_child();
    if (child < 0) return fail("fork error");
    if (child == 0) run_shell(in, out);

    out.write.reset();
    in.read.reset();
    const int flags = fcntl(in.write.get(), F_GETFL);
    if (flags == -1) return fail("fcntl F_GETFL");
    if (fcntl(in.write.get(), F_SETFL, flags | O_NONBLOCK) == -1) return fail("fcntl F_SETFL");
    if (write(in.write.get(), blob, static_cast<std::size_t>(length)) == -1 && errno == EAGAIN)
        return fail("pipe full issue\n");
    in.write.reset();
    // Before any output is read, so that the compiler has written all of it or failed. How it ended does not count: the
    // text alone tells.
    static_cast<void>(wait(nullptr));
    return collect_source(out.read);
}
