// Level of the core rail and who may ask for it.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob vcore_dvfs_disable = {
    VCORE, "vcore_dvfs_disable", "Disable VCORE DVFS, stay at boot level",
    dt(R"(&vcore_dvfs { status = "disabled"; };)")};

template <unsigned Mv>
inline constexpr knob vcore_fix = {
    VCORE, text<"vcore_fix_{}mv", Mv>, text<"Fix VCORE at {} mV", Mv>,
    dt(text<"&vcore_dvfs { fixed-microvolt = <{}>; };", Mv * 1000>), choice{"fixed VCORE level"}};

inline constexpr knob vcore_fix_550mv = {
    VCORE, "vcore_fix_550mv", "Fix VCORE at its lowest level, 550 mV (may hang under load)",
    dt("&vcore_dvfs { fixed-microvolt = <550000>; };"), choice{"fixed VCORE level"}};
inline constexpr knob vcore_req_log = {
    VCORE, "vcore_req_log", "Log VCORE level requests per client", dt("&vcore_dvfs { request-log; };")};
inline constexpr knob vcore_floor_set = {
    VCORE, "vcore_floor_set", "Set VCORE floor in uV (550000-725000), higher may damage",
    dt_arg("&vcore_dvfs { floor-microvolt = <0x%x>; };")};
inline constexpr knob vcore_floor_disp = {
    VCORE, "vcore_floor_disp", "Keep highest VCORE level while display is on",
    dt(R"(&vcore_dvfs { display-floor = "max"; };)")};
inline constexpr knob vcore_dram_decouple = {
    VCORE, "vcore_dram_decouple", "Let DRAM rate and VCORE level change independently",
    dt("&vcore_dvfs { dram-coupling-disable; };")};
inline constexpr knob vcore_timeout_panic = {
    VCORE, "vcore_timeout_panic", "Panic when a VCORE level change times out",
    dt(R"(&vcore_dvfs { change-timeout-action = "panic"; };)")};

}  // namespace catalogue
