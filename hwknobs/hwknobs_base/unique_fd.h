// A file descriptor that closes itself, and reading from one.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

/// Owns at most one descriptor; -1 stands for none, as it does for poll().
class unique_fd {
public:
    unique_fd() = default;
    explicit unique_fd(int fd) : fd_(fd) {}
    unique_fd(unique_fd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    unique_fd& operator=(unique_fd&& other) noexcept {
        reset(std::exchange(other.fd_, -1));
        return *this;
    }
    unique_fd(const unique_fd&) = delete;
    unique_fd& operator=(const unique_fd&) = delete;
    ~unique_fd() { reset(); }

    int get() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }
    void reset(int fd = -1) {
        if (fd_ >= 0) close(fd_);
        fd_ = fd;
    }

private:
    int fd_ = -1;
};

/// Reads until `size` bytes are there, the file ends or a read fails. Returns the bytes read; where they are fewer,
/// errno tells why (ENODATA: the file ended).
inline std::size_t read_fully(int fd, void* buffer, std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t n = read(fd, static_cast<char*>(buffer) + done, size - done);
        if (n == 0) errno = ENODATA;
        if (n <= 0) break;
        done += static_cast<std::size_t>(n);
    }
    return done;
}
