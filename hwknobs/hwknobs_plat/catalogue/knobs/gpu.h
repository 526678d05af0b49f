// Operating points, power policy, shader cores, memory protection.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

template <unsigned Mhz>
inline constexpr knob gpu_fix = {
    GPU, text<"gpu_fix_{}mhz", Mhz>, text<"Fix GPU at {} MHz", Mhz>,
    dt(text<"&gpufreq { fixed-frequency-mhz = <{}>; };", Mhz>), choice{"fixed GPU frequency"}};

inline constexpr knob gpu_dvfs_disable = {
    GPU, "gpu_dvfs_disable", "Disable GPU DVFS and keep the boot frequency", dt("&gpufreq { dvfs-disable; };")};
inline constexpr knob gpu_throttle_disable = {
    GPU, "gpu_throttle_disable", "Disable thermal throttling of the GPU (it may overheat)",
    dt("&gpufreq { thermal-throttle-disable; };")};
inline constexpr knob gpu_voltage_offset = {
    GPU, "gpu_voltage_offset", "Offset GPU voltage in uV (-50000 to 50000), may hang or damage",
    dt_arg("&gpufreq { voltage-offset-microvolt = <%d>; };")};
inline constexpr knob gpu_speed_bin_ignore = {
    GPU, "gpu_speed_bin_ignore", "Ignore GPU speed bin fuses, use the default OPP table (may hang)",
    env("gpu_bin", "off")};
inline constexpr knob gpu_avs_disable = {
    GPU, "gpu_avs_disable", "Ignore fused GPU voltages and use the safe voltage table", env("gpu_avs", "off")};
inline constexpr knob gpu_disable = {
    GPU, "gpu_disable", "Disable GPU and fall back to software rendering", dt(R"(&mali { status = "disabled"; };)")};
inline constexpr knob gpu_power_on_from_boot = {
    GPU, "gpu_power_on_from_boot", "Keep GPU power domain on from the bootloader onward",
    both("gpu_pwr", "on", "&gpufreq { power-always-on; };")};
inline constexpr knob gpu_policy_always_on = {
    GPU, "gpu_policy_always_on", "Use always_on GPU power policy", dt(R"(&mali { power-policy = "always_on"; };)")};
inline constexpr knob gpu_policy_adaptive_set = {
    GPU, "gpu_policy_adaptive_set", "Set adaptive GPU power policy level (0-3, 0 for off)",
    dt_arg("&mali { adaptive-power-policy = <%d>; };")};
inline constexpr knob gpu_one_core = {
    GPU, "gpu_one_core", "Run GPU with one shader core", dt("&mali { core-mask = <0x1>; };")};
inline constexpr knob gpu_clock_gating_disable = {
    GPU, "gpu_clock_gating_disable", "Disable GPU internal clock gating", dt("&mali { clock-gating-disable; };")};
inline constexpr knob gpu_sleep_disable = {
    GPU, "gpu_sleep_disable", "Disable GPU firmware sleep and always power off on idle",
    dt("&mali { firmware-sleep-disable; };")};
inline constexpr knob enable_gpu_acp = {
    GPU, "enable_gpu_acp", "Enable GPU ACP", dt("&mali { system-coherency = <0>; };"), choice{"GPU coherency"}};
inline constexpr knob gpu_coherency_disable = {
    GPU, "gpu_coherency_disable", "Disable GPU system coherency", dt("&mali { system-coherency = <31>; };"),
    choice{"GPU coherency"}};
inline constexpr knob gpu_soft_stop_disable = {
    GPU, "gpu_soft_stop_disable", "Disable soft-stop of GPU jobs", dt("&mali { soft-stop-disable; };")};
inline constexpr knob gpu_csf_fw_timeout_set = {
    GPU, "gpu_csf_fw_timeout_set", "Set GPU firmware response timeout in ms (100-60000)",
    dt_arg("&mali { firmware-timeout-ms = <0x%x>; };")};
inline constexpr knob gpu_csf_progress_disable = {
    GPU, "gpu_csf_progress_disable", "Disable progress timeout of GPU command streams",
    dt("&mali { progress-timeout = <0>; };")};
inline constexpr knob gpu_csf_fw_core_dump = {
    GPU, "gpu_csf_fw_core_dump", "Save GPU firmware core dump on firmware fault", dt("&mali { firmware-core-dump; };")};
inline constexpr knob gpu_reset_dump = {
    GPU, "gpu_reset_dump", "Dump GPU registers to kernel log before GPU reset", dt("&mali { reset-dump; };")};
inline constexpr knob gpu_mmu_fault_panic = {
    GPU, "gpu_mmu_fault_panic", "Panic on GPU MMU fault", dt("&mali { mmu-fault-panic; };")};
inline constexpr knob gpu_exception_mask_set = {
    GPU, "gpu_exception_mask_set", "Set mask of GPU exceptions to report (0x0-0xffffffff)",
    dt_arg("&mali { exception-mask = <0x%x>; };")};
inline constexpr knob gpu_counters_enable = {
    GPU, "gpu_counters_enable", "Allow GPU hardware counters for unprivileged processes",
    dt("&mali { hwcnt-user-access; };")};
inline constexpr knob gpu_afbc_disable = {
    GPU, "gpu_afbc_disable", "Disable AFBC compression of GPU render targets", dt("&mali { afbc-disable; };")};
// Since the G720.
inline constexpr knob gpu_deferred_vertex_disable = {
    GPU, "gpu_deferred_vertex_disable", "Disable deferred vertex shading of the GPU",
    dt("&mali { deferred-vertex-shading-disable; };")};

}  // namespace catalogue
