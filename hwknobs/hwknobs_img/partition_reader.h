// Reading the settings partition back.
#pragma once

#include "hwknobs_img/plenv_block.h"
#include "hwknobs_plat/platform.h"

#include <memory>
#include <string>

/// The parsed contents of a partition that holds a setting.
struct hwknobs_partimage {
    std::string name;
    const hwknobs_plat* plat;
    bool boot_failure_recovery;
    plenv_map plenv;
    std::string dts;          ///< the overlay, converted back to source by the compiler; empty when that gave nothing
    bool overlay_unreadable;  ///< an overlay is stored, and `dts` is empty all the same

    /// Null when no setting is stored, or the partition cannot be opened or read (--verbose tells why). Once a setting
    /// was found, whatever keeps it from being read ends the process.
    static std::unique_ptr<hwknobs_partimage> load(const char* partition);
};

/// Prints what the partition holds. Always true.
bool hwknobs_partimage_dump(const char* partition);
