// The two operations that write the settings partition.
#pragma once

#include "hwknobs_img/plenv_block.h"

/// The partition that the bootloader reads.
inline constexpr const char* hwknobs_default_partition = "/dev/block/by-name/boot_para";

/// What to zero. The numbers appear in messages.
enum class partimage_clear_mode : int {
    all = 0,
    settings = 1,  ///< the first MiB
    ddr_data = 2,  ///< what lies behind it
};

/// Compiles the overlay source `dts` (null for none) and writes a complete image to `partition`. The default partition
/// is cleared first, whatever `partition` is: after any later failure the bootloader finds no setting there, which is
/// the safe state. Ends the process on any failure.
void hwknobs_generate_partimage(const char* partition, const char* name, const char* plat, const plenv_map& plenv,
                                const char* dts, bool boot_failure_recovery);

/// Zeroes a range of the partition, which has 1 to 128 MiB. Ends the process on any failure.
void hwknobs_partimage_clear(const char* partition, partimage_clear_mode mode);
