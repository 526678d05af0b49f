// Regulators (bucks, LDOs), charger, battery gauge, power key.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

// A pair for core and memory, which the bootloader sets up before anything else runs; the offset alone for modem, AI
// processor and GPU memories. Offsets of CPU and GPU stand with those. The SRAM rail follows the core's by itself, vs1
// to vs3 feed LDOs only, and vpa follows the output power of the modem.
template <word Buck>
inline constexpr knob buck_plus_25mv = {
    PMIC, text<"buck_{}_plus_25mv", Buck>, text<"Raise buck {} by 25 mV in the bootloader", Buck>,
    env(text<"buck_{}", Buck>, "p25")};

template <word Buck>
inline constexpr knob buck_offset = {
    PMIC, text<"buck_{}_offset", Buck>, text<"Offset buck {} in uV (-50000 to 50000), may hang or damage", Buck>,
    dt_arg(text<"&{} { regulator-microvolt-offset = <%d>; };", Buck>)};

inline constexpr knob buck_pwm_all = {
    PMIC, "buck_pwm_all", "Force all bucks to PWM mode", dt("&pmic { buck-force-pwm; };")};

inline constexpr knob pmic_lp_mode_disable = {
    PMIC, "pmic_lp_mode_disable", "Keep bucks and LDOs out of low-power mode in suspend",
    dt("&pmic { low-power-mode-disable; };")};
inline constexpr knob ldo_vsd33_on = {
    PMIC, "ldo_vsd33_on", "Keep SD card LDO vsd33 on", dt("&vsd33 { regulator-always-on; };")};
inline constexpr knob pmic_oc_log_only = {
    PMIC, "pmic_oc_log_only", "Log regulator over-current, do not switch off (may damage parts)",
    dt(R"(&pmic { over-current-action = "log"; };)")};
// Since 5.14.
inline constexpr knob buck_vgpu11_oc_error_set = {
    PMIC, "buck_vgpu11_oc_error_set", "Set buck vgpu11 over-current limit in uA (2000000-9000000), may damage",
    dt_arg("&vgpu11 { regulator-oc-error-microamp = <0x%x>; };")};
inline constexpr knob pmic_uvlo_2600mv = {
    PMIC, "pmic_uvlo_2600mv", "Set PMIC under-voltage lockout to 2600 mV (may damage battery)", env("uvlo_mv", "2600")};
inline constexpr knob pmic_thermal_shutdown_disable = {
    PMIC, "pmic_thermal_shutdown_disable", "Disable PMIC thermal shutdown (may overheat and damage parts)",
    dt("&pmic { thermal-shutdown-disable; };")};
inline constexpr knob pwrkey_reset_disable = {
    PMIC, "pwrkey_reset_disable", "Disable long-press reset of the power key (no way out of a hang)",
    both("lprst", "off", "&pmic_keys { long-press-reset-disable; };")};

inline constexpr knob pmic_reset_warm = {
    PMIC, "pmic_reset_warm", "Use warm reset on reboot and panic (DRAM stays powered)",
    dt(R"(&pmic { reset-type = "warm"; };)")};
inline constexpr knob pmic_wdt_disable = {
    PMIC, "pmic_wdt_disable", "Disable PMIC watchdog (a hang does not end by itself)",
    both("pmic_wdt", "off", R"(&pmic_watchdog { status = "disabled"; };)")};
inline constexpr knob pmic_reg_dump = {
    PMIC, "pmic_reg_dump", "Dump PMIC registers in bootloader and at kernel probe",
    both("pmic_dump", "on", "&pmic { probe-register-dump; };")};
inline constexpr knob pmic_reg_print = {
    PMIC, "pmic_reg_print", "Print one PMIC register at probe by address (0x0-0xffff)",
    dt_arg("&pmic { probe-register-print = <0x%x>; };")};
inline constexpr knob pmic_boot_reason_log = {
    PMIC, "pmic_boot_reason_log", "Print PMIC power-on and power-off reasons at boot",
    dt("&pmic { power-reason-log; };")};
inline constexpr knob spmi_parity_panic = {
    PMIC, "spmi_parity_panic", "Panic on SPMI parity error", dt(R"(&spmi { parity-error-action = "panic"; };)")};
inline constexpr knob chg_disable = {
    PMIC, "chg_disable", "Disable battery charging", dt("&charger { charging-disable; };")};
inline constexpr knob chg_input_500ma = {
    PMIC, "chg_input_500ma", "Limit charger input current to 500 mA",
    dt("&charger { input-current-limit-microamp = <500000>; };")};
inline constexpr knob chg_current_set = {
    PMIC, "chg_current_set", "Set charge current limit in uA (100000-3000000), may damage battery",
    dt_arg("&charger { constant-charge-current-max-microamp = <0x%x>; };")};
inline constexpr knob chg_jeita_disable = {
    PMIC, "chg_jeita_disable", "Ignore JEITA temperature ranges when charging (battery may burn)",
    dt("&charger { jeita-disable; };")};
inline constexpr knob gauge_soc_50 = {
    PMIC, "gauge_soc_50", "Report fixed battery level of 50 percent (hides an empty battery)",
    dt("&gauge { fixed-capacity-percent = <50>; };")};
inline constexpr knob gauge_temp_set = {
    PMIC, "gauge_temp_set", "Report fixed battery temperature in C (-20 to 60), hides overheating",
    dt_arg("&gauge { fixed-temperature-celsius = <%d>; };")};
inline constexpr knob gauge_low_shutdown_disable = {
    PMIC, "gauge_low_shutdown_disable", "Do not shut down at low battery voltage (may damage the battery)",
    dt("&gauge { low-voltage-shutdown-disable; };")};
inline constexpr knob batt_throttle_disable = {
    PMIC, "batt_throttle_disable", "Disable CPU and GPU throttling on battery voltage dips (may reset)",
    dt("&battery { voltage-dip-throttling-disable; };")};

}  // namespace catalogue
