// Feeds the compiler its source and collects the blob and the error text, all in one poll loop: whichever of the
// three pipes fills up first, neither side can be left waiting for the other.
#include "hwknobs_base/diagnostics.h"
#include "hwknobs_dtc/child_process.h"
#include "hwknobs_dtc/dt_compiler.h"
#include "hwknobs_dtc/flattened_tree.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr const char* function_name = "hwknobs_dt_to_blob";

// The compiler's name, as much of it as the 255 characters that the tool has always taken.
using program_name = std::array<char, 256>;

program_name compiler_program() {
    program_name program{};
    std::strncpy(program.data(), hwknobs_dt_compiler(), program.size() - 1);
    return program;
}

struct compiler_pipes {
    pipe_ends in;
    pipe_ends out;
    pipe_ends err;
};

compiler_pipes open_pipes() {
    compiler_pipes pipes;
    if (!open_pipe(pipes.in)) error("pipe return error (in)\n");
    if (!open_pipe(pipes.out)) error("pipe return error (out)\n");
    if (!open_pipe(pipes.err)) error("pipe return error (err)\n");
    return pipes;
}

// In the child. Its standard output is the pipe by now: the message of a failed exec ends up where a blob would, and
// what the user sees is the parent's report of the exit status.
[[noreturn]] void run_compiler(compiler_pipes pipes, program_name program) {
    if (dup2(pipes.in.read.get(), STDIN_FILENO) == -1 || dup2(pipes.out.write.get(), STDOUT_FILENO) == -1 ||
        dup2(pipes.err.write.get(), STDERR_FILENO) == -1)
        error("%s: dup2 failed, %s", function_name, std::strerror(errno));
    pipes = {};
    char* const argv[] = {program.data(), nullptr};
    execvp(program.data(), argv);
    error("%s: execv %s failed(%d), %s\n", function_name, program.data(), errno, std::strerror(errno));
}

// The parent's side of one compiler run.
class compiler_run {
public:
    compiler_run(compiler_pipes pipes, std::string_view source, std::span<char> blob)
        : in_(std::move(pipes.in.write)),
          out_(std::move(pipes.out.read)),
          err_(std::move(pipes.err.read)),
          source_(source),
          blob_(blob) {
        // A full pipe must not hold us up while the compiler waits for its output to be read.
        if (fcntl(in_.get(), F_SETFL, O_NONBLOCK) == -1) error("Write fragment error");
    }

    // Returns when all three pipes are done with. The compiler may close them in any order: only the end of a stream
    // itself ends the service of it.
    void pump() {
        while (in_ || out_ || err_) {
            std::array<pollfd, 3> fds{{{in_.get(), POLLOUT, 0}, {out_.get(), POLLIN, 0}, {err_.get(), POLLIN, 0}}};
            if (poll(fds.data(), fds.size(), -1) < 1) error("Poll return error");
            if ((fds[0].revents & (POLLOUT | POLLERR)) != 0) send_source();
            if ((fds[1].revents & (POLLIN | POLLHUP)) != 0) receive_blob(fds[1].revents);
            if ((fds[2].revents & (POLLIN | POLLHUP)) != 0) receive_errors(fds[2].revents);
        }
    }

    std::size_t blob_size() const { return size_; }
    std::string_view errors() const { return errors_; }
    bool source_refused() const { return refused_; }

private:
    void send_source() {
        const ssize_t n = write(in_.get(), source_.data(), source_.size());
        if (n < 0) {
            if (errno == EAGAIN) return;
            if (errno != EPIPE) error("Write fragment error");
            // The compiler does not read on. Its exit status tells more than the broken pipe does.
            refused_ = true;
            in_.reset();
            return;
        }
        source_.remove_prefix(static_cast<std::size_t>(n));
        if (source_.empty()) in_.reset();
    }

    void receive_blob(short events) {
        if ((events & POLLIN) == 0) return out_.reset();
        const std::span<char> room = blob_.subspan(size_);
        if (room.empty()) error("dt fragement compile size too large >= %d", static_cast<int>(blob_.size()));
        const ssize_t n = read(out_.get(), room.data(), room.size());
        if (n < 0) error("Read blob error");
        if (n == 0) out_.reset();
        size_ += static_cast<std::size_t>(n);
    }

    void receive_errors(short events) {
        if ((events & POLLIN) == 0) return err_.reset();
        std::array<char, 4096> text;
        const ssize_t n = read(err_.get(), text.data(), text.size());
        if (n < 0) error("%s: Read DTC's stderr failed", function_name);
        if (n == 0) err_.reset();
        errors_.append(text.data(), static_cast<std::size_t>(n));
    }

    unique_fd in_;
    unique_fd out_;
    unique_fd err_;
    std::string_view source_;
    std::span<char> blob_;
    std::size_t size_ = 0;
    std::string errors_;
    bool refused_ = false;
};

[[noreturn]] void report_failed_compile(const compiler_run& run, const char* program, int exit_status,
                                        const char* dts) {
    constexpr const char* rule = "==================";
    std::puts("DTC compile failed");
    std::puts(rule);
    std::fwrite(run.errors().data(), 1, run.errors().size(), stdout);
    if (!run.errors().empty() && !run.errors().ends_with('\n')) std::putchar('\n');
    std::puts(rule);
    debug("Dump dt_fragment:");
    debug("%s", dts);
    error("DTC '%s' failed (status %d)", program, exit_status);
}

}  // namespace

const char* hwknobs_dt_compiler() {
    const char* const program = std::getenv("DTCBIN");
    return program != nullptr ? program : "dtc_vendor";
}

std::size_t hwknobs_dt_to_blob(const char* dts, std::span<char> blob) {
    compiler_pipes pipes = open_pipes();
    const program_name program = compiler_program();
    const child_signals signals;
    const pid_t child = fork_child();
    if (child < 0) error("Can't fork to execute dtc");
    if (child == 0) run_compiler(std::move(pipes), program);

    compiler_run run(std::move(pipes), dts, blob);
    run.pump();
    int status = 0;
    if (waitpid(child, &status, 0) < 0) error("%s: Waitpid return error %s", function_name, std::strerror(errno));
    if (!WIFEXITED(status)) error("DTC process exit abnormally");
    if (WEXITSTATUS(status) != 0) report_failed_compile(run, program.data(), WEXITSTATUS(status), dts);
    if (run.source_refused()) error("Write fragment error");
    // A compiler may fail to write all of its output and not say so.
    if (is_truncated_tree(blob.first(run.blob_size())))
        error("DTC '%s' gave a part of the overlay only (%zu bytes)", program.data(), run.blob_size());
    return run.blob_size();
}
