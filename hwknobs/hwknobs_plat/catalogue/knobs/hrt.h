// Hard real-time bandwidth: what display and camera are granted from the memory.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob hrt_check_disable = {
    HRT, "hrt_check_disable", "Disable hard real-time bandwidth check", dt("&hrt { check-disable; };")};
inline constexpr knob hrt_dvfs_floor_max = {
    HRT, "hrt_dvfs_floor_max", "Keep highest DRAM rate while display is on",
    dt(R"(&hrt { display-dvfs-floor = "max"; };)")};
inline constexpr knob hrt_cam_floor_max = {
    HRT, "hrt_cam_floor_max", "Keep highest DRAM rate while camera streams",
    dt(R"(&hrt { camera-dvfs-floor = "max"; };)")};
inline constexpr knob hrt_over_log = {
    HRT, "hrt_over_log", "Log frames that exceed the hard real-time bandwidth", dt("&hrt { over-limit-log; };")};
inline constexpr knob hrt_margin_set = {
    HRT, "hrt_margin_set", "Change hard real-time margin in percent (-20 to 50)",
    dt_arg("&hrt { margin-percent = <%d>; };")};
inline constexpr knob hrt_bandwidth_ecc_overhead_include = {
    HRT, "hrt_bandwidth_ecc_overhead_include", "Count DRAM inline ECC overhead in hard real-time bandwidth",
    dt("&hrt { count-inline-ecc-traffic; };")};

}  // namespace catalogue
