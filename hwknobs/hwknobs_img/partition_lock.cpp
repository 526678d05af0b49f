#include "hwknobs_img/partition_lock.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_img/partition_writer.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

namespace {

// O_NONBLOCK, as the path may be anything, and opening a pipe would wait for a writer. The compiler does not inherit
// the descriptor, so the lock ends with the command.
unique_fd open_to_lock(const char* path) {
    return unique_fd(path != nullptr ? open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC) : -1);
}

void lock(const unique_fd& file, const char* path) {
    if (!file || flock(file.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
    debug("%s: another command is changing it, waiting", path);
    std::fflush(stdout);
    static_cast<void>(flock(file.get(), LOCK_EX));
}

// A file locked twice by two names would wait for itself: where nothing tells them apart, they are taken for one.
bool may_be_same_file(const unique_fd& a, const unique_fd& b) {
    if (!a || !b) return false;
    struct stat of_a {};
    struct stat of_b {};
    return fstat(a.get(), &of_a) != 0 || fstat(b.get(), &of_b) != 0 ||
           (of_a.st_dev == of_b.st_dev && of_a.st_ino == of_b.st_ino);
}

}  // namespace

partition_lock::partition_lock(const char* partition)
    : default_partition_(open_to_lock(hwknobs_default_partition)),
      partition_(open_to_lock(partition)) {
    lock(default_partition_, hwknobs_default_partition);
    if (!may_be_same_file(default_partition_, partition_)) lock(partition_, partition);
}
