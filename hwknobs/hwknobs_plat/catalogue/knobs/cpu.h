// Cores, clocks, idle states, scheduler, mitigations, errata, throttling. "Since 5.3." tells the first kernel.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob boot_core_only = {
    CPU, "boot_core_only", "Start the boot core only", both("maxcpus", "1", "&chosen { max-cpus = <1>; };")};

template <word AllCores>
inline constexpr knob cpu_start_mask_set = {
    CPU, "cpu_start_mask_set", text<"Set mask of CPUs to start (0x1-{}), bit 0 is the boot core: keep it", AllCores>,
    dt_arg("&chosen { cpu-start-mask = <0x%x>; };")};

inline constexpr knob big_off = {CPU, "big_off", "Leave whole big cluster off", dt("&chosen { cpu-start-skip-big; };")};

// Until 4.4.
inline constexpr knob cpu_hotplug_disable = {
    CPU, "cpu_hotplug_disable", "Disable automatic core hotplug, keep all cores online",
    dt(R"(&cpu_hotplug { status = "disabled"; };)")};
// From 4.9 to 4.19.
inline constexpr knob core_ctl_disable = {
    CPU, "core_ctl_disable", "Disable core control, never isolate lightly loaded cores",
    dt(R"(&core_ctl { status = "disabled"; };)")};
inline constexpr knob cpufreq_disable = {
    CPU, "cpufreq_disable", "Disable CPU frequency scaling, stay at the boot clock", dt("&chosen { cpufreq-off; };")};

template <unsigned MinMhz, unsigned MaxMhz>
inline constexpr knob cpu_cap_set = {
    CPU, "cpu_cap_set", text<"Cap CPU cluster at a frequency in MHz ({}-{})", MinMhz, MaxMhz>,
    dt_arg("&cpufreq_cpu { max-frequency-mhz = <0x%x>; };")};

inline constexpr knob cpu_fix_max = {
    CPU, "cpu_fix_max", "Fix all CPUs at their highest operating point", dt(R"(&cpufreq { fixed-opp = "max"; };)"),
    choice{"operating point of all CPUs"}};
inline constexpr knob cpu_fix_min = {
    CPU, "cpu_fix_min", "Fix all CPUs at their lowest operating point", dt(R"(&cpufreq { fixed-opp = "min"; };)"),
    choice{"operating point of all CPUs"}};

template <word Cluster, unsigned Mhz>
inline constexpr knob cluster_fix = {
    CPU, text<"{}_fix_{}mhz", Cluster, Mhz>, text<"Fix {} cluster at {} MHz", Cluster, Mhz>,
    dt(text<"&cpufreq_{} { fixed-frequency-mhz = <{}>; };", Cluster, Mhz>),
    choice{text<"{} cluster frequency", Cluster>}};

template <unsigned MinMhz, unsigned MaxMhz>
inline constexpr knob big_cap_set = {
    CPU, "big_cap_set", text<"Cap big cluster at a frequency in MHz ({}-{})", MinMhz, MaxMhz>,
    dt_arg("&cpufreq_big { max-frequency-mhz = <0x%x>; };")};

inline constexpr knob big_turbo_disable = {
    CPU, "big_turbo_disable", "Disable turbo operating points of big cluster", dt("&cpufreq_big { turbo-disable; };")};
// Until 4.4.
inline constexpr knob hmp_disable = {
    CPU, "hmp_disable", "Disable HMP task migration between little and big cores", dt("&chosen { hmp-disable; };")};
inline constexpr knob cpufreq_sw_dvfs = {
    CPU, "cpufreq_sw_dvfs", "Let the kernel set CPU clocks instead of the DVFS firmware",
    dt("&cpufreq { software-dvfs; };")};
// Since 4.7.
inline constexpr knob iowait_boost_disable = {
    CPU, "iowait_boost_disable", "Disable schedutil boost after I/O wait",
    dt("&chosen { schedutil-no-iowait-boost; };")};
// Since 4.9.
inline constexpr knob eas_disable = {
    CPU, "eas_disable", "Disable energy-aware scheduling",
    dt(R"(&chosen { sched-energy-aware-status = "disabled"; };)")};
// From 4.9 to 4.19.
inline constexpr knob walt_disable = {
    CPU, "walt_disable", "Use PELT instead of WALT load tracking",
    dt(R"(&chosen { sched-walt-status = "disabled"; };)")};
// Since 5.15.
inline constexpr knob pelt_halflife_8ms = {
    CPU, "pelt_halflife_8ms", "Shorten PELT half-life from 32 ms to 8 ms",
    dt("&chosen { sched-pelt-multiplier = <4>; };")};
// Since 5.3.
inline constexpr knob uclamp_disable = {
    CPU, "uclamp_disable", "Ignore utilization clamps of tasks and groups", dt("&chosen { sched-uclamp-disable; };")};

template <word Cpus>
inline constexpr knob big_isolate = {
    CPU, "big_isolate", "Keep normal tasks off the big cluster (isolcpus)",
    dt(text<R"(&chosen { isolated-cpus = "{}"; };)", Cpus>)};

inline constexpr knob cpuidle_disable = {
    CPU, "cpuidle_disable", "Use WFI only, disable deeper CPU idle states", dt("&chosen { cpuidle-off; };")};
inline constexpr knob core_off_disable = {
    CPU, "core_off_disable", "Disable core-off idle state", dt(R"(&cpu_sleep { status = "disabled"; };)")};
inline constexpr knob cluster_off_disable = {
    CPU, "cluster_off_disable", "Disable cluster-off idle state", dt(R"(&cluster_sleep { status = "disabled"; };)")};
inline constexpr knob little_cluster_off_disable = {
    CPU, "little_cluster_off_disable", "Disable cluster-off idle state of little cluster",
    dt(R"(&cluster_sleep_little { status = "disabled"; };)")};
inline constexpr knob mid_cluster_off_disable = {
    CPU, "mid_cluster_off_disable", "Disable cluster-off idle state of mid cluster",
    dt(R"(&cluster_sleep_mid { status = "disabled"; };)")};
inline constexpr knob big_cluster_off_disable = {
    CPU, "big_cluster_off_disable", "Disable cluster-off idle state of big cluster",
    dt(R"(&cluster_sleep_big { status = "disabled"; };)")};
inline constexpr knob cci_fix_max = {
    CPU, "cci_fix_max", "Fix coherent interconnect clock at its maximum", dt(R"(&cci { fixed-opp = "max"; };)")};
inline constexpr knob dsu_off_disable = {
    CPU, "dsu_off_disable", "Keep DSU and L3 powered when all cores are idle",
    dt(R"(&cluster_sleep { status = "disabled"; };)")};
// Since 5.1.
inline constexpr knob idle_governor_set = {
    CPU, "idle_governor_set", "Select CPU idle governor (menu or teo)",
    dt_arg(R"(&chosen { cpuidle-governor = "%s[menu,teo]"; };)")};
inline constexpr knob l3_fix_max = {
    CPU, "l3_fix_max", "Fix L3 and DSU clock at its highest operating point", dt(R"(&dsu { fixed-opp = "max"; };)")};
inline constexpr knob l3_powerdown_disable = {
    CPU, "l3_powerdown_disable", "Keep all L3 ways powered, no partial power-down",
    dt("&dsu { no-partial-power-down; };")};
inline constexpr knob mpam_disable = {
    CPU, "mpam_disable", "Disable MPAM cache and bandwidth partitioning", dt(R"(&mpam { status = "disabled"; };)")};
inline constexpr knob mpam_little_l3_portion_limit_half = {
    CPU, "mpam_little_l3_portion_limit_half", "Limit little cluster to half of the L3 portions (MPAM)",
    dt(R"(&dsu { mpam-little-portions = "half"; };)")};
inline constexpr knob cpu_clock_gating_disable = {
    CPU, "cpu_clock_gating_disable", "Disable dynamic clock gating of the CPU subsystem",
    dt("&cpu_subsys { clock-gating-disable; };")};
inline constexpr knob cache_ecc_log = {
    CPU, "cache_ecc_log", "Log corrected ECC errors of the CPU caches", dt("&cpu_edac { log-corrected; };")};
inline constexpr knob svs_disable = {
    CPU, "svs_disable", "Disable adaptive voltage scaling of the CPU supplies",
    both("avs", "off", R"(&svs { status = "disabled"; };)")};
inline constexpr knob cpu_voltage_offset = {
    CPU, "cpu_voltage_offset", "Offset CPU voltage in uV (-50000 to 50000), may hang or damage",
    dt_arg("&svs_cpu { voltage-offset-microvolt = <%d>; };")};

// A row for each supply that the clusters have of their own. DSU and L3 are on that of the little cluster.
template <word Cluster>
inline constexpr knob cluster_voltage_offset = {
    CPU, text<"{}_voltage_offset", Cluster>,
    text<"Offset {} cluster voltage in uV (-50000 to 50000), may damage", Cluster>,
    dt_arg(text<"&svs_{} { voltage-offset-microvolt = <%d>; };", Cluster>)};

inline constexpr knob little_mid_voltage_offset = {
    CPU, "little_mid_voltage_offset", "Offset little and mid voltage in uV (-50000 to 50000), may damage",
    dt_arg("&svs_little { voltage-offset-microvolt = <%d>; };")};

inline constexpr knob droop_disable = {
    CPU, "droop_disable", "Disable clock stretching on big cluster voltage droop",
    dt(R"(&droop_big { status = "disabled"; };)")};
inline constexpr knob cpu_throttle_disable = {
    CPU, "cpu_throttle_disable", "Disable thermal throttling of the CPUs (they may overheat)",
    dt(R"(&cpu_cooling { status = "disabled"; };)")};
inline constexpr knob cpu_trip_set = {
    CPU, "cpu_trip_set", "Set CPU throttling trip in millidegrees C (60000-105000), may overheat",
    dt_arg("&cpu_alert0 { temperature = <%d>; };")};

// Since 5.2.
inline constexpr knob mitigations_off = {
    CPU, "mitigations_off", "Disable all CPU speculation mitigations (insecure)",
    dt(R"(&chosen { mitigations-status = "disabled"; };)")};
// From 4.9 to 4.19: mitigations_off has it since.
inline constexpr knob kpti_disable = {
    CPU, "kpti_disable", "Disable kernel page table isolation (KPTI), insecure",
    dt(R"(&chosen { kpti-status = "disabled"; };)")};

// A workaround of the kernel.
template <word Cores, unsigned Number, word About>
inline constexpr knob erratum_skip = {
    CPU, text<"erratum_{}_skip", Number>, text<"Skip Cortex-{} erratum {} workaround ({})", Cores, Number, About>,
    dt(text<"&chosen { skip-erratum-{}; };", Number>)};

// A workaround of the secure monitor.
template <word Cores, unsigned Number, word About>
inline constexpr knob firmware_erratum_skip = {
    CPU, text<"erratum_{}_skip", Number>, text<"Skip Cortex-{} erratum {} workaround ({})", Cores, Number, About>,
    env(text<"noerr_{}", Number>, "on")};

// Where some of the cores run 32-bit programs, as A710 beside A510 and X2.
inline constexpr knob el0_32bit_mismatch_allow = {
    CPU, "el0_32bit_mismatch_allow", "Run 32-bit programs on the cores that can (mismatched EL0)",
    dt("&chosen { allow-mismatched-32bit-el0; };")};
inline constexpr knob pauth_disable = {
    CPU, "pauth_disable", "Hide pointer authentication from kernel and programs", dt("&chosen { no-pauth; };")};
inline constexpr knob bti_disable = {
    CPU, "bti_disable", "Hide branch target identification (BTI) from kernel and programs", dt("&chosen { no-bti; };")};
// Since 6.0.
inline constexpr knob sve_disable = {
    CPU, "sve_disable", "Hide scalable vectors (SVE) from kernel and programs", dt("&chosen { no-sve; };")};
inline constexpr knob amu_frequency_invariance_disable = {
    CPU, "amu_frequency_invariance_disable", "Do not use AMU counters to scale load by frequency",
    dt("&chosen { no-amu-fie; };")};

}  // namespace catalogue
