#include "hwknobs_base/diagnostics.h"
#include "hwknobs_img/partition_lock.h"
#include "hwknobs_img/partition_writer.h"
#include "hwknobs_main/commands.h"
#include "hwknobs_main/options.h"

#include <cstdlib>
#include <string_view>

namespace {

// Only the first option counts.
partimage_clear_mode parse_clear_command(int argc, char** argv) {
    static constexpr option long_options[] = {
        {"all", no_argument, nullptr, 0},
        {"hwknobs-data", no_argument, nullptr, 0},
        {"ddr-data", no_argument, nullptr, 0},
        {nullptr, 0, nullptr, 0},
    };
    int option_index = -1;
    const int result = getopt_long(argc, argv, "", long_options, &option_index);
    if (result == -1) return partimage_clear_mode::settings;
    if (result != 0) std::exit(1);
    const std::string_view name =
        option_name(long_options, option_index, 711, "void parse_clear_command(const char *, const int, char **)");
    if (name == "all") return partimage_clear_mode::all;
    if (name == "hwknobs-data") return partimage_clear_mode::settings;
    if (name == "ddr-data") return partimage_clear_mode::ddr_data;
    error("Unknown hwknobs clear option");
}

}  // namespace

int run_clear_command(const global_options& global, int argc, char** argv) {
    const partimage_clear_mode mode = parse_clear_command(argc, argv);
    const partition_lock lock(global.file);
    hwknobs_partimage_clear(global.file, mode);
    return 0;
}
