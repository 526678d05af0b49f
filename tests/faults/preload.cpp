// Preloaded into the tool, fails its Nth allocation (FAIL_ALLOCATION=N), or lets its Nth write() take only half of what
// it is given (SHORT_WRITE=N). At the end of a run the file "counts" tells how many of each there were. The programs
// that the tool starts are left alone.
//
// strace fails any system call, but a write that it shortens writes nothing; libfiu fails all calls or some by chance,
// not the Nth one.
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
ssize_t __write(int fd, const void* data, std::size_t size);
}

namespace {

pid_t tool = 0;
long allocations = 0;
long writes = 0;

bool is_due(long& count, const char* variable) {
    if (environ == nullptr) return false;  // the loader at work, before the C library has begun
    if (tool == 0) {
        tool = getpid();
        unsetenv("LD_PRELOAD");
    }
    if (tool != getpid()) return false;
    const char* const target = std::getenv(variable);
    return ++count == (target != nullptr ? std::atol(target) : 0);
}

bool fails() {
    if (!is_due(allocations, "FAIL_ALLOCATION")) return false;
    errno = ENOMEM;
    return true;
}

__attribute__((destructor)) void leave_counts() {
    if (tool != getpid()) return;
    std::FILE* const file = std::fopen("counts", "w");
    if (file != nullptr) std::fprintf(file, "%ld %ld\n", allocations - 1, writes);  // less the one that fopen() made
    if (file != nullptr) std::fclose(file);
}

}  // namespace

extern "C" {
void* malloc(std::size_t size) { return fails() ? nullptr : __libc_malloc(size); }
void* calloc(std::size_t count, std::size_t size) { return fails() ? nullptr : __libc_calloc(count, size); }
void* realloc(void* memory, std::size_t size) { return fails() ? nullptr : __libc_realloc(memory, size); }
ssize_t write(int fd, const void* data, std::size_t size) {
    return __write(fd, data, is_due(writes, "SHORT_WRITE") ? size / 2 : size);
}
}
