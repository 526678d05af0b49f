// Reading the settings partition back.
#pragma once

#include "hwknobs_img/plenv_block.h"
#include "hwknobs_item/config_item.h"

#include <memory>
#include <string>
#include <vector>

/// The parsed contents of a partition that holds a setting.
struct hwknobs_partimage {
    std::string name;
    const hwknobs_plat* plat;
    bool boot_failure_recovery;
    plenv_map plenv;
    std::string dts;  ///< the overlay, converted back to source by the compiler; empty when that gave nothing

    /// Null when no setting is stored (or the partition cannot be opened; --verbose tells why). Once a setting was
    /// found, whatever keeps it from being read ends the process.
    static std::unique_ptr<hwknobs_partimage> load(const char* partition);
};

/// Rebuilds the items of a stored setting from the lines that `set` left in its source, in their order. A line whose
/// id the platform does not have is warned of again and again, without end.
void save_hwknobs_effect_status(const char* plat, const char* dts, std::vector<config_item>& items);

/// Prints what the partition holds. Always true.
bool hwknobs_partimage_dump(const char* partition);
