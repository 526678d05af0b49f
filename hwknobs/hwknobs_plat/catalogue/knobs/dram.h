// The memory chips: speed, refresh, training, ECC.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

template <unsigned Mbps>
inline constexpr knob dram_fix = {
    DRAM, text<"dram_fix_{}mbps", Mbps>, text<"Fix DRAM data rate at {} Mbps", Mbps>,
    both("ddr_rate", text<"{}", Mbps>, text<"&dramc { fixed-data-rate = <{}>; };", Mbps>),
    choice{"fixed DRAM data rate"}};

template <unsigned Mbps>
inline constexpr knob dram_max = {
    DRAM, text<"dram_max_{}mbps", Mbps>, text<"Cap DRAM data rate at {} Mbps", Mbps>,
    dt(text<"&dramc { max-data-rate = <{}>; };", Mbps>)};

inline constexpr knob dram_dvfs_disable = {
    DRAM, "dram_dvfs_disable", "Disable DRAM DVFS and stay at the boot data rate", dt("&dramc { dvfs-disable; };")};
inline constexpr knob dram_train_full = {
    DRAM, "dram_train_full", "Run full DRAM training at every boot", env("ddr_train", "full"), choice{"DRAM training"}};
inline constexpr knob dram_train_renew = {
    DRAM, "dram_train_renew", "Discard saved DRAM training data and retrain", env("ddr_train", "new"),
    choice{"DRAM training"}};
inline constexpr knob dram_eye_scan_rx = {
    DRAM, "dram_eye_scan_rx", "Print DRAM read eye scan in the bootloader log", env("ddr_eye_rx", "on")};
inline constexpr knob dram_eye_scan_tx = {
    DRAM, "dram_eye_scan_tx", "Print DRAM write eye scan in the bootloader log", env("ddr_eye_tx", "on")};

template <word Supply>
inline constexpr knob dram_vdd2_plus_20mv = {
    DRAM, "dram_vdd2_plus_20mv", text<"Raise DRAM {} by 20 mV during training", Supply>, env("ddr_vdd2", "p20"),
    choice{"DRAM supply during training"}};

template <word Supply>
inline constexpr knob dram_vdd2_minus_20mv = {
    DRAM, "dram_vdd2_minus_20mv", text<"Lower DRAM {} by 20 mV during training", Supply>, env("ddr_vdd2", "m20"),
    choice{"DRAM supply during training"}};

inline constexpr knob dram_dqs_osc_disable = {
    DRAM, "dram_dqs_osc_disable", "Disable periodic DQS oscillator tracking", dt("&dramc { dqs-osc-disable; };")};
inline constexpr knob dram_wck_osc_disable = {
    DRAM, "dram_wck_osc_disable", "Disable periodic WCK2DQ oscillator tracking", dt("&dramc { wck2dq-osc-disable; };")};
inline constexpr knob dram_refresh_2x = {
    DRAM, "dram_refresh_2x", "Double DRAM refresh rate (half tREFI)", dt("&dramc { refresh-rate-percent = <200>; };")};
inline constexpr knob dram_refresh_per_bank = {
    DRAM, "dram_refresh_per_bank", "Use per-bank refresh instead of all-bank refresh",
    dt(R"(&dramc { refresh-mode = "per-bank"; };)"), choice{"DRAM refresh mode"}};
inline constexpr knob dram_refresh_all_bank = {
    DRAM, "dram_refresh_all_bank", "Use all-bank refresh instead of per-bank refresh",
    dt(R"(&dramc { refresh-mode = "all-bank"; };)"), choice{"DRAM refresh mode"}};

template <unsigned MaxCode>
inline constexpr knob dram_mr4_override = {
    DRAM, "dram_mr4_override", text<"Override MR4 refresh rate code of DRAM (0-{}), may lose data", MaxCode>,
    dt_arg("&dramc { mr4-override = <0x%x>; };")};

inline constexpr knob dram_rfm_disable = {
    DRAM, "dram_rfm_disable", "Disable DRAM refresh management (RFM), may corrupt data",
    dt("&dramc { rfm-disable; };")};
inline constexpr knob dram_self_refresh_disable = {
    DRAM, "dram_self_refresh_disable", "Disable self-refresh entry of idle DRAM controller",
    dt("&dramc { idle-self-refresh-disable; };")};
inline constexpr knob dram_power_down_disable = {
    DRAM, "dram_power_down_disable", "Disable DRAM power-down between accesses", dt("&dramc { power-down-disable; };")};
inline constexpr knob dram_wck_always_on = {
    DRAM, "dram_wck_always_on", "Keep DRAM WCK always on", dt("&dramc { wck-always-on; };")};
inline constexpr knob dram_odt_disable = {
    DRAM, "dram_odt_disable", "Disable DQ on-die termination (ODT) of DRAM (boot may fail)", env("ddr_odt", "off")};

inline constexpr knob dram_dbi_disable = {
    DRAM, "dram_dbi_disable", "Disable DRAM data bus inversion (DBI)", env("ddr_dbi", "off")};
inline constexpr knob dram_link_ecc_disable = {
    DRAM, "dram_link_ecc_disable", "Disable DRAM link ECC", env("ddr_ecc_link", "off")};
inline constexpr knob dram_inline_ecc_disable = {
    DRAM, "dram_inline_ecc_disable", "Disable inline ECC of DRAM", env("ddr_ecc_inline", "off")};
inline constexpr knob dram_inline_ecc_uncorrected_panic = {
    DRAM, "dram_inline_ecc_uncorrected_panic", "Panic on uncorrectable inline ECC error",
    dt("&dramc { ecc-ue-panic; };")};
inline constexpr knob dram_rank0_only = {DRAM, "dram_rank0_only", "Use DRAM rank 0 only", env("ddr_ranks", "1")};
inline constexpr knob dram_channel0_only = {
    DRAM, "dram_channel0_only", "Use DRAM channel 0 only", env("ddr_channels", "1")};
inline constexpr knob dram_test_full = {
    DRAM, "dram_test_full", "Test all DRAM at boot (may take several minutes)", env("ddr_test", "full")};

}  // namespace catalogue
