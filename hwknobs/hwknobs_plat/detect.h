// Which platform the program runs on, as the kernel tells it.
#pragma once

#include <cstdint>
#include <optional>

/// The hardware code of the running device, or nothing (with a line on standard output when a file failed).
/// /proc/chip/hw_code wins where it is readable; the device tree's atag,chipid is the other source.
std::optional<std::uint16_t> detect_hw_code();
