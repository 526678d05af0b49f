// Panels, DSI, DisplayPort, backlight, display pipeline.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob lcm_settings = {
    DISPLAY, "lcm_settings", "switch lcm settings", dt_arg("&dsi0 { panel_hwknobs = <%d>; };")};

template <word Panel>
inline constexpr knob panel = {
    DISPLAY, text<"panel_{}", Panel>, text<"Force panel {} at boot", Panel>,
    both("panel", text<"{}", Panel>, text<R"(&dsi0 { panel-name = "{}"; };)", Panel>), choice{"panel"}};

inline constexpr knob panel_id_check_skip = {
    DISPLAY, "panel_id_check_skip", "Skip panel ID read, trust the bootloader",
    dt("&dsi0 { panel-id-check-disable; };")};
inline constexpr knob esd_check_disable = {
    DISPLAY, "esd_check_disable", "Disable panel ESD check", dt("&dsi0 { esd-check-disable; };")};

template <unsigned Hz>
inline constexpr knob refresh_fix = {
    DISPLAY, text<"refresh_fix_{}hz", Hz>, text<"Fix panel refresh rate at {} Hz", Hz>,
    dt(text<"&dispsys { fixed-refresh-hz = <{}>; };", Hz>), choice{"fixed refresh rate"}};

template <unsigned MaxMbps>
inline constexpr knob dsi_lane_rate_set = {
    DISPLAY, "dsi_lane_rate_set", text<"Set DSI lane rate in Mbps (80-{})", MaxMbps>,
    dt_arg("&dsi0 { lane-rate-mbps = <0x%x>; };")};

inline constexpr knob dsi_clk_continuous = {
    DISPLAY, "dsi_clk_continuous", "Keep DSI clock lane in high-speed mode between packets",
    dt(R"(&dsi0 { clock-lane-mode = "continuous"; };)")};
inline constexpr knob dsi_ssc_disable = {
    DISPLAY, "dsi_ssc_disable", "Disable DSI PLL spread spectrum",
    both("dsi_ssc", "off", "&mipi_tx0 { ssc-disable; };")};
inline constexpr knob dsi_ulps_disable = {
    DISPLAY, "dsi_ulps_disable", "Keep DSI lanes out of ULPS between frames", dt("&dsi0 { ulps-disable; };")};
inline constexpr knob dsi1_disable = {
    DISPLAY, "dsi1_disable", "Disable second DSI link", dt(R"(&dsi1 { status = "disabled"; };)")};
inline constexpr knob dp_disable = {
    DISPLAY, "dp_disable", "Disable DisplayPort output", dt(R"(&dp_tx { status = "disabled"; };)")};
inline constexpr knob dp_rate_hbr = {
    DISPLAY, "dp_rate_hbr", "Limit DisplayPort link rate to HBR (2.7 Gbps)",
    dt("&dp_tx { max-linkrate-mhz = <2700>; };")};
inline constexpr knob bl_boot_level_set = {
    DISPLAY, "bl_boot_level_set", "Set bootloader brightness level (0-255)", env_arg("bl_lvl", "0x%x")};
// LCDs have it.
inline constexpr knob cabc_disable = {
    DISPLAY, "cabc_disable", "Disable content adaptive backlight (CABC)", dt("&dsi0 { cabc-disable; };")};
inline constexpr knob disp_idle_disable = {
    DISPLAY, "disp_idle_disable", "Keep display path and its clocks on when the screen is static",
    dt("&dispsys { idle-mode-disable; };")};
inline constexpr knob disp_partial_disable = {
    DISPLAY, "disp_partial_disable", "Disable partial update, always send full frames",
    dt("&dispsys { partial-update-disable; };")};
inline constexpr knob te_ignore = {
    DISPLAY, "te_ignore", "Ignore panel TE signal, send frames on a timer", dt(R"(&dsi0 { te-source = "timer"; };)")};
inline constexpr knob ovl_single_layer = {
    DISPLAY, "ovl_single_layer", "Offer one overlay layer only, compose the rest on the GPU",
    dt("&ovl0 { max-layers = <1>; };")};
inline constexpr knob ovl_afbc_disable = {
    DISPLAY, "ovl_afbc_disable", "Refuse AFBC compressed layers in the overlay", dt("&ovl0 { afbc-disable; };")};
inline constexpr knob disp_underrun_red = {
    DISPLAY, "disp_underrun_red", "Output red pixels on display underrun",
    dt("&rdma0 { underrun-color = <0xff0000>; };")};
inline constexpr knob disp_underrun_action_set = {
    DISPLAY, "disp_underrun_action_set", "Set action on display underrun (none, log, dump or panic)",
    dt_arg(R"(&dispsys { underrun-action = "%s[none,log,dump,panic]"; };)")};

// Since 4.19.
template <word AllBits>
inline constexpr knob drm_debug_mask_set = {
    DISPLAY, "drm_debug_mask_set", text<"Set DRM debug message mask (0x0-{})", AllBits>,
    dt_arg("&chosen { drm-debug = <0x%x>; };")};

inline constexpr knob dsi_bist_boot = {
    DISPLAY, "dsi_bist_boot", "Show DSI color bars in the bootloader", env("dsi_bist", "on")};
inline constexpr knob pq_bypass = {
    DISPLAY, "pq_bypass", "Bypass all picture quality blocks", dt("&dispsys { pq-bypass; };")};
inline constexpr knob dsc_disable = {
    DISPLAY, "dsc_disable", "Send uncompressed pixels to the panel (DSC off)",
    dt(R"(&disp_dsc0 { status = "disabled"; };)")};

}  // namespace catalogue
