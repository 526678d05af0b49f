// Tracing, profiling, logs, debug ports.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob bootloader_log_verbose = {
    TOOL, "bootloader_log_verbose", "Print all bootloader messages", env("bl_log", "5")};
inline constexpr knob log_store_enable = {
    TOOL, "log_store_enable", "Save bootloader and kernel log to storage",
    both("bl_save", "on", "&chosen { log-store; };")};
inline constexpr knob boot_reason_print = {
    TOOL, "boot_reason_print", "Print boot reason and watchdog reset status at boot",
    dt("&watchdog { reset-status-print; };")};
inline constexpr knob boot_profile_enable = {
    TOOL, "boot_profile_enable", "Enable boot time profiling", both("bprof", "on", "&chosen { boot-profile; };")};
inline constexpr knob adb_early_start = {
    TOOL, "adb_early_start", "Start adb early at boot", dt("&chosen { adb-early-start; };")};
inline constexpr knob jtag_pins_enable = {
    TOOL, "jtag_pins_enable", "Enable JTAG on dedicated debug pins", env("jtag", "pin")};
inline constexpr knob last_pc_print = {
    TOOL, "last_pc_print", "Print last PC of each CPU after a watchdog reset", dt("&debug_latch { last-pc-print; };")};
inline constexpr knob bus_tracker_enable = {
    TOOL, "bus_tracker_enable", "Record last CPU bus transactions for analysis after reset",
    dt(R"(&bus_tracker { status = "okay"; };)")};

template <unsigned Cpu>
inline constexpr knob etm_enable = {
    TOOL, text<"etm_cpu{}_enable", Cpu>, text<"Enable ETM instruction trace of CPU{}", Cpu>,
    dt(text<R"(&etm{} { status = "okay"; };)", Cpu>)};

template <unsigned Cpu>
inline constexpr knob ete_enable = {
    TOOL, text<"ete_cpu{}_enable", Cpu>, text<"Enable ETE instruction trace of CPU{}", Cpu>,
    dt(text<R"(&ete{} { status = "okay"; };)", Cpu>)};

inline constexpr knob etb_enable = {
    TOOL, "etb_enable", "Enable CoreSight ETB trace sink on the chip", dt(R"(&etb { status = "okay"; };)")};
inline constexpr knob etf_enable = {
    TOOL, "etf_enable", "Enable CoreSight ETF trace sink on the chip", dt(R"(&etf { status = "okay"; };)")};
inline constexpr knob etr_enable = {
    TOOL, "etr_enable", "Enable CoreSight ETR trace sink in DRAM", dt(R"(&etr { status = "okay"; };)")};
inline constexpr knob trbe_enable = {
    TOOL, "trbe_enable", "Enable per-CPU trace buffers (TRBE)", dt(R"(&trbe { status = "okay"; };)")};
// Since 4.4.
inline constexpr knob perf_stat_events = {
    TOOL, "perf_stat_events", "Set Boot Perf Stat Events", env_arg("perf_event", "%s")};
inline constexpr knob pmu_idle_keep = {
    TOOL, "pmu_idle_keep", "Keep PMU counters running in CPU idle", dt("&pmu { idle-keep-on; };")};
// Since 4.16.
inline constexpr knob dsu_pmu_enable = {
    TOOL, "dsu_pmu_enable", "Enable DSU performance counters", dt(R"(&dsu_pmu { status = "okay"; };)")};
inline constexpr knob spe_enable = {
    TOOL, "spe_enable", "Enable statistical profiling (SPE)", dt(R"(&spe { status = "okay"; };)")};
inline constexpr knob thermal_log_1s = {
    TOOL, "thermal_log_1s", "Log all thermal zones every second", dt("&thermal_zones { log-period-ms = <1000>; };")};
inline constexpr knob conn_log_enable = {
    TOOL, "conn_log_enable", "Enable log of Wi-Fi and Bluetooth firmware", dt("&connectivity { firmware-log; };")};
inline constexpr knob sensorhub_log_enable = {
    TOOL, "sensorhub_log_enable", "Enable log of sensor hub firmware", dt("&sensor_hub { firmware-log; };")};

inline constexpr knob trace_buf_size_set = {
    TOOL, "trace_buf_size_set", "Set ftrace buffer size per CPU in KB (4-65536)",
    dt_arg("&chosen { trace-buf-size-kb = <0x%x>; };")};
inline constexpr knob trace_sched_irq_boot = {
    TOOL, "trace_sched_irq_boot", "Record scheduler and interrupt events from boot",
    dt(R"(&chosen { trace-event = "sched,irq,ipi"; };)")};
inline constexpr knob trace_dump_on_oops = {
    TOOL, "trace_dump_on_oops", "Dump ftrace buffers of all CPUs to console on oops",
    dt("&chosen { ftrace-dump-on-oops = <1>; };")};

}  // namespace catalogue
