// One complete setting in memory: what `set` builds or loads, changes, and writes.
#pragma once

#include "hwknobs_img/plenv_block.h"
#include "hwknobs_item/config_item.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct hwknobs_image {
    std::string name;
    const hwknobs_plat* plat;
    bool boot_failure_recovery = false;
    std::vector<config_item> items;  ///< in the order of selection

    /// A null `plat` stands for the platform that the program runs on. Ends the process for an unknown one.
    hwknobs_image(const char* name, const char* plat, const std::vector<config_item>& items);

    /// The setting that the partition holds; null when it holds none. Its plenv block is not kept: it is made anew from
    /// the items with every write. Ends the process when the stored items cannot be read.
    static std::unique_ptr<hwknobs_image> get(const char* partition);

    /// Removes the first item with exactly this name; false when there is none.
    bool item_remove(const std::string_view& name);

    /// Gives the item of the same entry the argument of `in`, or appends a copy of `in`. Always true.
    bool item_update(const config_item& in);

    /// The overlay source of the items, without the header that records the selection.
    std::string generate_dt() const;

    /// The bootloader settings of the items. Of two items with the same key the later one counts.
    plenv_map generate_settings() const;

private:
    explicit hwknobs_image(const hwknobs_plat* plat) : plat(plat) {}
};
