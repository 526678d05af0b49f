#include "hwknobs_base/diagnostics.h"
#include "hwknobs_img/partition_writer.h"
#include "hwknobs_main/commands.h"
#include "hwknobs_main/options.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

namespace {

struct command {
    std::string_view word;
    int (*run)(const global_options& global, int argc, char** argv);
};

constexpr command commands[] = {
    {"list", run_list_command},
    {"list-group", run_list_group_command},
    {"plat-list", run_plat_list_command},
    {"clear", run_clear_command},
    {"set", run_set_command},
    {"setname", run_setname_command},
    {"xmlconfig-show", run_xmlconfig_show_command},
    {"xmlconfig-set", run_xmlconfig_set_command},
    {"status", run_status_command},
    {"result", run_result_command},
    {"selftest", run_selftest_command},
    {"auth-status", run_auth_status_command},
};

[[noreturn]] void usage(const char* program) {
    constexpr const char* synopses[] = {
        "[--verbose] plat-list",
        "[--plat=pxNNNN] [--verbose] list [--group=NNN]",
        "[--plat=pxNNNN] [--verbose] list-group",
        "[--plat=pxNNNN] [--verbose] [--file=fielname] set [--option] [1...n]",
        "[--plat=pxNNNN] [--verbose] [--file=fielname] setname [--option] [1...n]",
        "[--verbose] [--file=fielname] xmlconfig-set filename",
        "[--plat=pxNNNN] [--verbose] xmlconfig-show [1...n]",
        "[--verbose] auth-status",
        "[--verbose] [--file=filename] clear [--all | --hwknobs-data | --ddr-data]",
        "[--verbose] result(show the recovery result, 0:normal, 0xffff:abnormal)",
        "[--verbose] status [--partition] [--system]",
    };
    for (const char* const synopsis : synopses) std::printf("usage %s %s\n", program, synopsis);
    std::puts(
        "  --partition: show partition setting info\n"
        "  --system: show current system setting (default)\n"
        "\n\nThe parameter of [--option] follow \"set\" and \"setname\" can be:\n"
        "\t-r | --recovery: Enable boot failure recovery. ex: hwknobs set -r 3\n"
        "\t--no-recovery: Disable boot failure recovery.\n"
        "\t-d | --delete [idx|string...n]: Delete current existing settings. ex: hwknobs set -d 2 3\n"
        "\t-m | --modify [idx|string...n]: Append/Modify new setting of current existing settings. "
        "ex: hwknobs set -m 2 3 168 a1");
    std::exit(1);
}

// Leaves optind at the command word.
global_options parse_global_options(int argc, char** argv) {
    static constexpr option long_options[] = {
        {"plat", required_argument, nullptr, 0},
        {"file", required_argument, nullptr, 0},
        {"help", no_argument, nullptr, 0},
        {"verbose", no_argument, nullptr, 0},
        {nullptr, 0, nullptr, 0},
    };
    global_options global{.plat = nullptr, .file = hwknobs_default_partition};
    for (;;) {
        int option_index = -1;
        const int result = getopt_long(argc, argv, "+", long_options, &option_index);
        if (result == -1) return global;
        if (result != 0) std::exit(1);
        const std::string_view name = option_name(long_options, option_index, 757, "int main(int, char **)");
        if (name == "plat") global.plat = optarg;
        if (name == "file") global.file = optarg;
        if (name == "help") usage(argv[0]);
        if (name == "verbose") hwknobs_verbose = true;
    }
}

int run(int argc, char** argv) {
    const global_options global = parse_global_options(argc, argv);
    if (optind >= argc) usage(argv[0]);
    argc -= optind;
    argv += optind;
    restart_option_parser();
    for (const command& command : commands)
        if (command.word == argv[0]) return command.run(global, argc, argv);
    error("Unknown command '%s'", argv[0]);
}

// A partition that is opened while descriptor 1 is free would become the standard output. /dev/null takes its place:
// descriptor 1 is opened read-only, so that writing to a closed standard output still fails, and 0 write-only.
void occupy_standard_descriptors() {
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(fd, F_GETFD) == -1) static_cast<void>(open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

// Output that could not be written must not pass for success.
int flush_output(int status) {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
    std::perror("standard output");
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    occupy_standard_descriptors();
    try {
        return flush_output(run(argc, argv));
    } catch (const std::exception& e) {
        error("unhandled exception %s", e.what());
    }
}
