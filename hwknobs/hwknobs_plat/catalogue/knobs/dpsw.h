// Digital power switches: the power domains that are switched as a whole.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

inline constexpr knob dpsw_all_on = {
    DPSW, "dpsw_all_on", "Keep all power domains on from the bootloader onward",
    both("dpsw_on", "all", "&power_controller { domains-always-on; };")};
inline constexpr knob pd_ignore_unused = {
    DPSW, "pd_ignore_unused", "Keep unused power domains on after boot", dt("&chosen { pd-ignore-unused; };")};

template <word Domain, word Name>
inline constexpr knob power_domain_on = {
    DPSW, text<"dpsw_{}_on", Domain>, text<"Keep {} power domain on", Name>,
    dt(text<"&pd_{} { always-on; };", Domain>)};

inline constexpr knob dpsw_ack_panic = {
    DPSW, "dpsw_ack_panic", "Panic when a power domain switch is not acknowledged in time",
    dt(R"(&power_controller { ack-timeout-action = "panic"; };)")};

}  // namespace catalogue
