// The record that a setting keeps of itself. `set` and `xmlconfig-set` append it to the overlay source; the running
// system shows it in its device tree, and the items of a stored setting are read back from it:
//
//     &chosen {
//       hwknobs {
//         platform = "px8314";
//         command = "set";                        or "xmlconfig-set"
//         timestamp = "2024-05-01 13:45:10";      local time
//         boot_failure_recovery = "true";         or "false"; only with "set"
//         item0 = "Activate  big_off(12) Turn the big cores off";
//         item1 = "Activate  lcm_settings(7)[arg=3] switch lcm settings";
//         item2 = "Activate  perf_stat_events(9)[str=cycles] Set Boot Perf Stat Events";
//       };
//     };
//
// The items, only with "set" too, are numbered from 0. The text of one is config_item::desc().
#pragma once

#include "hwknobs_item/config_item.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The names of the properties, and the node that holds them on a running system.
namespace stored_record {
inline constexpr const char* node = "/proc/device-tree/chosen/hwknobs";
inline constexpr const char* platform = "platform";
inline constexpr const char* command = "command";
inline constexpr const char* timestamp = "timestamp";
inline constexpr const char* boot_failure_recovery = "boot_failure_recovery";
inline constexpr const char* item = "item";  ///< followed by the number
}  // namespace stored_record

/// The values of the property "command".
inline constexpr std::string_view set_command_word = "set";
inline constexpr std::string_view import_command_word = "xmlconfig-set";

/// The source text of a record with the current time. An imported document has neither a recovery flag nor items, so
/// the record of a system that booted with one has none.
std::string compose_record(std::string_view command, std::string_view platform,
                           std::optional<bool> boot_failure_recovery, std::span<const config_item> items);

/// Rebuilds the items of a setting from the record in its source text `dts`, in their order. `plat` names the platform.
/// An item whose id the platform lacks is found and reported again and again, without end. Ends the process for an
/// unknown platform or a string argument that the item does not allow.
void save_hwknobs_effect_status(const char* plat, const char* dts, std::vector<config_item>& items);
