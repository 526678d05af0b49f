// The least that the jobs of hwknobs can cost: the compiler and the system calls, and nothing else. A static program,
// as every other way (a shell, dd) starts more processes than hwknobs does. It does as the shell lines would:
//
//   floor set SOURCE IMAGE PARTITION    dtc <SOURCE >/dev/null
//                                       dd if=/dev/zero of=PARTITION bs=16K count=256 conv=notrunc oflag=sync
//                                       dd if=IMAGE of=PARTITION bs=1M conv=notrunc oflag=sync
//   floor compile SOURCE                dtc <SOURCE >/dev/null
//   floor convert BLOB                  sh -c 'dtc -Wno-unit_address_vs_reg -I dtb -O dts - 2>/dev/null' <BLOB
//
// And what a benchmark needs besides:
//
//   floor usage COMMAND...              runs COMMAND without its output; the peak memory in KiB and the page faults
//   floor [-OPTION...]                  the least of compilers: takes its input and gives nothing
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

namespace {

constexpr int chunk_size = 16384;
constexpr int partition_size = 4 << 20;
char image[partition_size];
char zeros[chunk_size];

// Waits for it, with standard input and output as they are named. The exit status, or -1.
int run(char* const argv[], const char* input, const char* output, rusage& usage) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, input, O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, output, O_WRONLY, 0);
    pid_t pid = 0;
    int status = 0;
    if (posix_spawnp(&pid, argv[0], &files, nullptr, argv, environ) != 0) return -1;
    if (wait4(pid, &status, 0, &usage) != pid || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}

bool compile(const char* source, rusage& usage) {
    char dtc[] = "dtc";
    char* const command[] = {dtc, nullptr};
    return run(command, source, "/dev/null", usage) == 0;
}

bool write_partition(const char* image_path, const char* partition) {
    const int in = open(image_path, O_RDONLY);
    const auto size = read(in, image, sizeof(image));
    const int out = open(partition, O_RDWR | O_SYNC);
    if (in < 0 || out < 0 || size <= 0) return false;
    for (int done = 0; done < partition_size; done += chunk_size)
        if (write(out, zeros, chunk_size) != chunk_size) return false;
    return lseek(out, 0, SEEK_SET) == 0 && write(out, image, static_cast<size_t>(size)) == size;
}

bool is(const char* word, const char* wanted) { return std::strcmp(word, wanted) == 0; }

}  // namespace

int main(int argc, char** argv) {
    rusage usage{};
    if (argc == 1 || argv[1][0] == '-') {
        while (read(STDIN_FILENO, image, sizeof(image)) > 0) continue;
        return 0;
    }
    if (argc == 3 && is(argv[1], "compile")) return compile(argv[2], usage) ? 0 : 1;
    if (argc == 5 && is(argv[1], "set")) return compile(argv[2], usage) && write_partition(argv[3], argv[4]) ? 0 : 1;
    if (argc == 3 && is(argv[1], "convert")) {
        char sh[] = "/bin/sh";
        char option[] = "-c";
        char line[] = "dtc -Wno-unit_address_vs_reg -I dtb -O dts - 2>/dev/null";
        char* const command[] = {sh, option, line, nullptr};
        return run(command, argv[2], "/dev/null", usage);
    }
    if (argc >= 3 && is(argv[1], "usage")) {
        // Some commands of hwknobs end with 1 when all is well.
        if (run(argv + 2, "/dev/null", "/dev/null", usage) < 0) return 1;
        std::printf("%ld %ld\n", usage.ru_maxrss, usage.ru_minflt);
        return 0;
    }
    return 2;
}
