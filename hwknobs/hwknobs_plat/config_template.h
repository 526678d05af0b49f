// The template language of the catalogue: the texts of plenv values and overlay fragments, with a conversion where
// the argument goes.
//
//   %d  a signed 32-bit argument     %u %x  an unsigned one, decimal or hexadecimal     %%  a percent sign
//   %s  a string, which may be followed at once by the values allowed for it: %s[on,off]
//
// The byte right after a bare %s is swallowed, by the check as by the renderer. The check is constexpr: the tables
// are checked by the compiler with the code that the tool itself runs when an entry is selected.
#pragma once

#include <cstdint>
#include <string_view>

/// What argument a template takes.
enum class config_arg_kind : std::uint32_t { none, int32, uint32, string };

enum class template_fault {
    none,
    unknown_conversion,
    mixed_kinds,
    empty_value,
    duplicate_value,
    ill_formed_list,
    ends_early,
};

/// Where in a template a byte stands. The numbers appear in messages.
enum class template_state { text = 0, conversion = 1, after_string = 2, value_list = 3 };

struct template_check {
    config_arg_kind kind = config_arg_kind::none;
    template_fault fault = template_fault::none;
    template_state end = template_state::text;  ///< the state at the end of the template, or at the fault
    std::string_view value{};                   ///< the repeated value of fault duplicate_value
};

constexpr config_arg_kind conversion_kind(char letter) {
    switch (letter) {
        case 'd': return config_arg_kind::int32;
        case 'u':
        case 'x': return config_arg_kind::uint32;
        case 's': return config_arg_kind::string;
        default: return config_arg_kind::none;
    }
}

constexpr bool is_ascii_alnum(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// Checks `text` and finds the kind of its argument. `add_value(std::string_view)` is called for each allowed value
/// in order (a view into `text`) and answers whether the value is new.
/// Two things look odd and are meant: "%%" makes the template forget the kind it had, and the byte after a bare
/// "%s" is not looked at.
template <class AddValue>
constexpr template_check check_template(std::string_view text, AddValue&& add_value) {
    template_check result;
    std::size_t value_start = 0;
    const auto fail = [&result](template_fault fault) {
        result.fault = fault;
        return result;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        switch (result.end) {
            case template_state::text:
                if (c == '%') result.end = template_state::conversion;
                break;
            case template_state::conversion: {
                result.end = template_state::text;
                if (c == '%') {
                    result.kind = config_arg_kind::none;
                    break;
                }
                const config_arg_kind kind = conversion_kind(c);
                if (kind == config_arg_kind::none) return fail(template_fault::unknown_conversion);
                if (result.kind != config_arg_kind::none && result.kind != kind)
                    return fail(template_fault::mixed_kinds);
                result.kind = kind;
                if (c == 's') result.end = template_state::after_string;
                break;
            }
            case template_state::after_string:
                result.end = c == '[' ? template_state::value_list : template_state::text;
                value_start = i + 1;
                break;
            case template_state::value_list:
                if (is_ascii_alnum(c)) break;
                if (c != ',' && c != ']') return fail(template_fault::ill_formed_list);
                result.value = text.substr(value_start, i - value_start);
                if (result.value.empty()) return fail(template_fault::empty_value);
                if (!add_value(result.value)) return fail(template_fault::duplicate_value);
                value_start = i + 1;
                if (c == ']') result.end = template_state::text;
                break;
        }
    }
    if (result.end == template_state::conversion || result.end == template_state::value_list)
        return fail(template_fault::ends_early);
    return result;
}
