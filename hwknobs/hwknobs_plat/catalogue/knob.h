// What a knob is. The files of knobs/ define each as a constant of its group, name, description and what it sets:
//
//     dt(fragment)                 a device-tree overlay fragment
//     env(key, value)              a bootloader setting
//     both(key, value, fragment)
//     dt_arg(...), env_arg(...)    the same with an argument: a conversion in the last text
//
// and, where others set the same key or property, the choice that it is an alternative of: choice{"KVM mode"}.
#pragma once

#include "hwknobs_plat/catalogue/text.h"
#include "hwknobs_plat/platform.h"

namespace catalogue {

using enum hwknobs_group;

struct setting {
    bool takes_argument;
    hwknobs_config::plenv_pair pl_setting;
    const char* dt_fragment;
};

/// What a knob is an alternative of. Of two knobs that set the same bootloader key or the same property only one can
/// have an effect: no table may hold both unless they are alternatives of one choice.
struct choice {
    const char* name = nullptr;
};

/// What all tables that have a knob say of it. What differs from one to the next is the id.
struct knob {
    hwknobs_group group;
    const char* name;
    const char* desc;
    setting sets;
    choice among{};
};

constexpr setting dt(const char* fragment) { return {false, {}, fragment}; }
constexpr setting dt_arg(const char* fragment) { return {true, {}, fragment}; }
constexpr setting env(const char* key, const char* value) { return {false, {key, value}, nullptr}; }
constexpr setting env_arg(const char* key, const char* value) { return {true, {key, value}, nullptr}; }
constexpr setting both(const char* key, const char* value, const char* fragment) {
    return {false, {key, value}, fragment};
}

}  // namespace catalogue
