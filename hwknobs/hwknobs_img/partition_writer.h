// The two operations that write the settings partition.
#pragma once

#include "hwknobs_img/plenv_block.h"

/// The partition that the bootloader reads.
inline constexpr const char* hwknobs_default_partition = "/dev/block/by-name/boot_para";

enum partimage_clear_mode : int { CLEAR_ALL = 0, CLEAR_SETTINGS = 1, CLEAR_DDR_DATA = 2 };

/// Compiles the overlay source `dts` (null for none) and writes a complete image to `partition`. The default partition
/// is cleared first, whatever `partition` is: after any later failure the bootloader finds no setting there, which is
/// the safe state. Ends the process on any failure.
void hwknobs_generate_partimage(const char* partition, const char* name, const char* plat, const plenv_map& plenv,
                                const char* dts, bool boot_failure_recovery);

/// Zeroes the whole partition (CLEAR_ALL), its first 1 MiB (CLEAR_SETTINGS) or the rest (CLEAR_DDR_DATA). The partition
/// has 1 to 128 MiB. Ends the process on any failure.
void hwknobs_partimage_clear(const char* partition, int mode);
