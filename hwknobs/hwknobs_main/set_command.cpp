// The set and setname commands.
#include "hwknobs_base/diagnostics.h"
#include "hwknobs_img/image.h"
#include "hwknobs_img/partition_lock.h"
#include "hwknobs_img/partition_writer.h"
#include "hwknobs_main/commands.h"
#include "hwknobs_main/item_words.h"
#include "hwknobs_main/options.h"
#include "hwknobs_record/stored_record.h"

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

constexpr const char* image_name = "default";

enum class set_mode { replace, remove, modify };

struct set_options {
    set_mode mode = set_mode::replace;
    std::optional<bool> recovery;  ///< empty: keep the stored flag
};

// Leaves optind at the first item word: options end there, and a later word is an item even if it begins with "-".
set_options parse_set_options(int argc, char** argv) {
    static constexpr option long_options[] = {
        {"delete", no_argument, nullptr, 1},
        {"modify", no_argument, nullptr, 2},
        {"recovery", no_argument, nullptr, 3},
        {"no-recovery", no_argument, nullptr, 4},
        {nullptr, 0, nullptr, 0},
    };
    set_options options;
    for (;;) {
        switch (getopt_long(argc, argv, "+dmr", long_options, nullptr)) {
            case -1: return options;
            case 'd':
            case 1: options.mode = set_mode::remove; break;
            case 'm':
            case 2: options.mode = set_mode::modify; break;
            case 'r':
            case 3:
                std::puts("enable boot fail recovery mechanism");
                options.recovery = true;
                break;
            case 4: options.recovery = false; break;
            default: error("hwknobs set with unknown option\n");
        }
    }
}

void remove_items(hwknobs_image& image, const std::vector<config_item>& items) {
    for (const config_item& item : items)
        if (!image.item_remove(item.name))
            std::printf("warn: cannot find item %s to delete\n", std::string(item.name).c_str());
}

void update_items(hwknobs_image& image, const std::vector<config_item>& items) {
    for (const config_item& item : items) image.item_update(item);
}

// The stored setting with the changes made to it, or null when the partition holds none.
std::unique_ptr<hwknobs_image> change_stored(const global_options& global, set_mode mode,
                                             const std::vector<config_item>& items) {
    auto image = hwknobs_image::get(global.file);
    if (image == nullptr) return nullptr;
    // Inverted on purpose: naming the stored platform is refused, naming another one passes.
    if (global.plat != nullptr && std::string_view(global.plat) == image->plat->name)
        error("platform name mismatch between setting and partition");
    (mode == set_mode::remove ? remove_items : update_items)(*image, items);
    return image;
}

void write_image(const hwknobs_image& image, const char* path) {
    std::printf("Config set (platform %s), #item=%zu\n", image.plat->name, image.items.size());
    for (const config_item& item : image.items) std::printf("\t%s\n", item.desc().c_str());
    const std::string dts = image.generate_dt() + compose_record(set_command_word, image.plat->name,
                                                                 image.boot_failure_recovery, image.items);
    hwknobs_generate_partimage(path, image_name, image.plat->name, image.generate_settings(), dts.c_str(),
                               image.boot_failure_recovery);
    std::puts("config set ok");
}

void parse_set_command(const global_options& global, int argc, char** argv, bool by_name) {
    const set_options options = parse_set_options(argc, argv);
    const int item_argc = argc - optind;
    constexpr assertion_site site{"hwknobs/hwknobs_main",
                                  "void parse_set_command(const char *, const char *, const int, char **, bool)"};
    check_invariant(item_argc >= 0, "item_argc >= 0", site, 459);
    char** const item_argv = argv + optind;
    restart_option_parser();
    const auto items = parse_item_set(item_argc, item_argv, global.plat, options.mode != set_mode::remove, by_name);
    // Without items there is one thing to do: to change the recovery flag of what is stored.
    if (items.empty() && !(options.mode == set_mode::modify && options.recovery)) error("No item set by arguments");

    const partition_lock lock(global.file);
    std::unique_ptr<hwknobs_image> image;
    if (options.mode != set_mode::replace) {
        image = change_stored(global, options.mode, items);
        if (image == nullptr && options.mode == set_mode::remove) {
            std::puts("<<partition>>\n  hwknobs partition setting doesn't exist");
            std::puts("Skip delete option");
            return;
        }
    }
    if (image == nullptr) image = std::make_unique<hwknobs_image>(image_name, global.plat, items);
    if (options.recovery) image->boot_failure_recovery = *options.recovery;
    write_image(*image, global.file);
}

}  // namespace

int run_set_command(const global_options& global, int argc, char** argv) {
    parse_set_command(global, argc, argv, false);
    return 0;
}

int run_setname_command(const global_options& global, int argc, char** argv) {
    parse_set_command(global, argc, argv, true);
    return 0;
}
