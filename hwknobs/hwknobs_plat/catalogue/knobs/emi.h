// Memory controller, buses, system cache: bandwidth limits, monitors, protection.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob emi_bwmon_enable = {
    EMI, "emi_bwmon_enable", "Enable EMI bandwidth monitor for each master", dt(R"(&emi_bwmon { status = "okay"; };)")};
inline constexpr knob emi_hash_disable = {
    EMI, "emi_hash_disable", "Disable EMI address hash across channels and banks", env("emi_hash", "off")};
inline constexpr knob emi_mpu_panic = {
    EMI, "emi_mpu_panic", "Panic on EMI MPU violation", dt(R"(&emi_mpu { violation-action = "panic"; };)"),
    choice{"EMI MPU violation"}};
inline constexpr knob emi_mpu_log = {
    EMI, "emi_mpu_log", "Only log EMI MPU violations", dt(R"(&emi_mpu { violation-action = "log"; };)"),
    choice{"EMI MPU violation"}};
inline constexpr knob bus_hang_enable = {
    EMI, "bus_hang_enable", "Enable bus hang detection", dt(R"(&bus_hang { status = "okay"; };)")};
inline constexpr knob bus_hang_panic = {
    EMI, "bus_hang_panic", "Panic on a hung bus transaction", dt("&bus_hang { timeout-panic; };")};
inline constexpr knob emi_clock_gating_disable = {
    EMI, "emi_clock_gating_disable", "Disable EMI dynamic clock gating", dt("&emi { clock-gating-disable; };")};
inline constexpr knob dramc_pmu_enable = {
    EMI, "dramc_pmu_enable", "Enable DRAM controller performance counters", dt(R"(&dramc_pmu { status = "okay"; };)")};
inline constexpr knob emi_latency_hist = {
    EMI, "emi_latency_hist", "Record EMI read latency histogram of CPU and GPU",
    dt("&emi_bwmon { latency-histogram; };")};
inline constexpr knob slc_disable = {
    EMI, "slc_disable", "Disable system level cache", dt(R"(&slc { status = "disabled"; };)")};
inline constexpr knob slc_gpu_ways_set = {
    EMI, "slc_gpu_ways_set", "Set way mask of system level cache for GPU (0x0-0xffff)",
    dt_arg("&slc { gpu-way-mask = <0x%x>; };")};

}  // namespace catalogue
