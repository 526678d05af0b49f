// Low power: suspend, deep idle, clock gating, wake-up sources.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob suspend_disable = {
    LPM, "suspend_disable", "Disable system suspend", dt("&spm { suspend-disable; };")};
// Since 4.10.
inline constexpr knob suspend_s2idle = {
    LPM, "suspend_s2idle", "Use suspend-to-idle as default suspend mode",
    dt(R"(&chosen { mem-sleep-default = "s2idle"; };)")};
inline constexpr knob pm_print_times = {
    LPM, "pm_print_times", "Print suspend and resume time of each device", dt("&chosen { pm-print-times; };")};
// Since 4.15.
inline constexpr knob pm_debug_messages = {
    LPM, "pm_debug_messages", "Enable suspend and resume debug messages", dt("&chosen { pm-debug-messages; };")};
inline constexpr knob pm_test_set = {
    LPM, "pm_test_set", "Stop suspend at a stage (freezer, devices, platform, processors, core)",
    dt_arg(R"(&chosen { pm-test = "%s[freezer,devices,platform,processors,core]"; };)")};
// Since 4.9.
inline constexpr knob dpm_watchdog_set = {
    LPM, "dpm_watchdog_set", "Set device suspend watchdog timeout in seconds (1-600)",
    dt_arg("&chosen { dpm-watchdog-timeout-sec = <0x%x>; };")};
inline constexpr knob wakelock_log = {
    LPM, "wakelock_log", "Print active wake locks when suspend is blocked", dt("&chosen { wake-lock-log; };")};
inline constexpr knob wake_reason_log = {
    LPM, "wake_reason_log", "Log wake-up source at each resume", dt("&spm { wake-reason-log; };")};
inline constexpr knob wake_mask_set = {
    LPM, "wake_mask_set", "Mask SPM wake-up sources by bits (0x0-0xffffffff, all: no wake-up)",
    dt_arg("&spm { wake-source-mask = <0x%x>; };")};
inline constexpr knob gic_pending_log = {
    LPM, "gic_pending_log", "Log pending GIC interrupts when suspend is aborted", dt("&gic { suspend-pending-log; };")};
inline constexpr knob soc_idle_disable = {
    LPM, "soc_idle_disable", "Disable SoC idle states", dt("&lpm { soc-idle-disable; };")};
inline constexpr knob clk26m_keep = {
    LPM, "clk26m_keep", "Keep 26 MHz clock on in SoC idle and suspend", dt("&spm { clk26m-off-disable; };")};
inline constexpr knob idle_self_refresh_disable = {
    LPM, "idle_self_refresh_disable", "Keep DRAM out of self-refresh in SoC idle",
    dt("&spm { idle-dram-self-refresh-disable; };")};
inline constexpr knob bus_pll_keep = {
    LPM, "bus_pll_keep", "Keep bus PLL on in SoC idle", dt("&spm { idle-bus-pll-off-disable; };")};
inline constexpr knob vcore_lp_disable = {
    LPM, "vcore_lp_disable", "Keep VCORE at active voltage in suspend", dt("&spm { vcore-low-power-disable; };")};
inline constexpr knob resource_req_log = {
    LPM, "resource_req_log", "Log resource requests that block SoC idle", dt("&spm { resource-request-log; };")};
inline constexpr knob sleep_count_log = {
    LPM, "sleep_count_log", "Print 26 MHz off and self-refresh counters at resume", dt("&spm { sleep-counter-log; };")};
inline constexpr knob spm_log_enable = {
    LPM, "spm_log_enable", "Enable log of SPM firmware", both("spm_log", "on", "&spm { firmware-log; };")};
inline constexpr knob bus_clock_gating_disable = {
    LPM, "bus_clock_gating_disable", "Disable hardware clock gating of system bus",
    dt("&sysbus { clock-gating-disable; };")};
inline constexpr knob cam_clocks_on = {
    LPM, "cam_clocks_on", "Keep camera clocks on", dt("&camsys { clocks-always-on; };")};
inline constexpr knob audio_clocks_on = {
    LPM, "audio_clocks_on", "Keep audio clocks on", dt("&audsys { clocks-always-on; };")};

}  // namespace catalogue
