// The status command: what the partition holds, or what the running system booted with.
#include "hwknobs_base/diagnostics.h"
#include "hwknobs_base/unique_fd.h"
#include "hwknobs_img/partition_reader.h"
#include "hwknobs_main/commands.h"
#include "hwknobs_main/options.h"
#include "hwknobs_record/stored_record.h"

#include <fcntl.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr int shown_items_max = 1024;

constexpr assertion_site system_status_site{"hwknobs/hwknobs_main", "bool hwknobs_system_status()"};

// The property as text, as far as its first NUL; cut to 255 bytes.
std::optional<std::string> dt_read_string(int dirfd, const char* name) {
    const unique_fd file(openat(dirfd, name, O_RDONLY | O_CLOEXEC));
    if (!file) {
        debug("%s: Can't open entry '%s'\n", "dt_read_string", name);
        return std::nullopt;
    }
    std::array<char, 256> text{};
    if (read(file.get(), text.data(), text.size() - 1) < 0) {
        debug("%s: Can't read hwknobs command entry\n", "dt_read_string");
        return std::nullopt;
    }
    return text.data();
}

void print_system_items(int dirfd) {
    for (int i = 0; i < shown_items_max; ++i) {
        std::array<char, 32> item_name{};
        check_invariant(std::snprintf(item_name.data(), item_name.size(), "%s%d", stored_record::item, i) > 0,
                        "snprintf(item_name, sizeof(item_name), \"item%d\", i) > 0", system_status_site, 594);
        const auto text = dt_read_string(dirfd, item_name.data());
        if (!text) return;
        std::printf("   %s\n", text->c_str());
    }
}

bool hwknobs_system_status() {
    const unique_fd node(open(stored_record::node, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!node) {
        std::puts("<<system>> hwknobs setting does not take effect");
        return false;
    }
    const auto command = dt_read_string(node.get(), stored_record::command);
    const auto date = dt_read_string(node.get(), stored_record::timestamp);
    const auto platform = dt_read_string(node.get(), stored_record::platform);
    const auto failure_recovery = dt_read_string(node.get(), stored_record::boot_failure_recovery);
    check_invariant(command && date && platform && failure_recovery, "command && date && platform && failure_recovery",
                    system_status_site, 583);
    std::printf("<<system>> hwknobs '%s' command at %s\n", command->c_str(), date->c_str());
    std::printf("   plat %s boot recovery %s\n", platform->c_str(), failure_recovery->c_str());
    if (*command == set_command_word) print_system_items(node.get());
    else if (*command != import_command_word)
        error("%s: unknown hwknobs command %s", "hwknobs_system_status", command->c_str());
    return true;
}

// Only the first option counts. Returns the exit status.
int parse_status_command(const char* partition, int argc, char** argv) {
    static constexpr option long_options[] = {
        {"partition", no_argument, nullptr, 0},
        {"system", no_argument, nullptr, 0},
        {nullptr, 0, nullptr, 0},
    };
    int option_index = -1;
    const int result = getopt_long(argc, argv, "", long_options, &option_index);
    if (result > 0) std::exit(1);
    if (result == 0) {
        const std::string_view name =
            option_name(long_options, option_index, 630, "int parse_status_command(const char *, const int, char **)");
        if (name == "partition") return hwknobs_partimage_dump(partition) ? 1 : 0;
        if (name != "system") error("Unknown option %s\n", std::string(name).c_str());
    }
    hwknobs_system_status();
    return 0;
}

}  // namespace

int run_status_command(const global_options& global, int argc, char** argv) {
    return parse_status_command(global.file, argc, argv);
}
