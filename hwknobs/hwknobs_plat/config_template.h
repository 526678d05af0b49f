// The template language of the catalogue: the texts of plenv values and overlay fragments, with a conversion where
// the argument goes.
//
//   %d  a signed 32-bit argument     %u %x  an unsigned one, decimal or hexadecimal     %%  a percent sign
//   %s  a string, which may be followed at once by the values allowed for it: %s[on,off]
//
// The byte right after a bare %s is swallowed. template_scanner is the one place that knows the language: the check,
// the renderer and the rules of the tables all work on the pieces that it yields. It is constexpr, so that the compiler
// checks the tables with the very code that the tool runs when a setting is selected.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// What argument a template takes.
enum class config_arg_kind : std::uint32_t { none, int32, uint32, string };

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

/// Where in a template a byte stands. The numbers appear in messages.
enum class template_state { text = 0, conversion = 1, after_string = 2, value_list = 3 };

enum class template_piece_kind {
    text,                ///< bytes that stand for themselves
    percent_sign,        ///< the second byte of "%%"
    conversion,          ///< the letter of a conversion
    unknown_conversion,  ///< a byte behind "%" that is no conversion; the next byte is tried in its place
    swallowed_byte,      ///< the byte behind a bare "%s"
    allowed_value,       ///< one value of a list
    unfinished_value,    ///< what the end of the template left of a value
};

/// A part of a template, as a view into it.
struct template_piece {
    template_piece_kind kind;
    std::string_view text;
};

/// Takes a template apart, from left to right. Judges nothing: every byte sequence yields pieces.
class template_scanner {
public:
    constexpr explicit template_scanner(std::string_view text) : rest_(text) {}

    /// The next piece, or nothing at the end.
    constexpr std::optional<template_piece> next() {
        while (!rest_.empty()) {
            switch (state_) {
                case template_state::text:
                    if (rest_.front() != '%') return template_piece{template_piece_kind::text, take(rest_.find('%'))};
                    take(1);
                    state_ = template_state::conversion;
                    break;
                case template_state::conversion: return scan_conversion();
                case template_state::after_string:
                    state_ = template_state::text;
                    if (rest_.front() != '[') return template_piece{template_piece_kind::swallowed_byte, take(1)};
                    take(1);
                    state_ = template_state::value_list;
                    break;
                case template_state::value_list: return scan_value();
            }
        }
        return std::nullopt;
    }

    /// Where the byte behind the last piece stands.
    constexpr template_state state() const { return state_; }

private:
    constexpr std::string_view take(std::size_t size) {
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    constexpr template_piece scan_conversion() {
        const std::string_view letter = take(1);
        const bool percent = letter.front() == '%';
        if (!percent && conversion_kind(letter.front()) == config_arg_kind::none)
            return {template_piece_kind::unknown_conversion, letter};
        state_ = letter.front() == 's' ? template_state::after_string : template_state::text;
        return {percent ? template_piece_kind::percent_sign : template_piece_kind::conversion, letter};
    }

    constexpr template_piece scan_value() {
        const std::string_view value = take(rest_.find_first_of(",]"));
        if (rest_.empty()) return {template_piece_kind::unfinished_value, value};
        if (take(1).front() == ']') state_ = template_state::text;
        return {template_piece_kind::allowed_value, value};
    }

    std::string_view rest_;
    template_state state_ = template_state::text;
};

enum class template_fault {
    none,
    unknown_conversion,
    mixed_kinds,
    empty_value,
    duplicate_value,
    ill_formed_list,
    ends_early,
};

struct template_check {
    config_arg_kind kind = config_arg_kind::none;
    template_fault fault = template_fault::none;
    template_state end = template_state::text;  ///< with ends_early: where the template ended
    std::string_view value{};                   ///< the last allowed value: with duplicate_value the repeated one
};

/// Checks `text` and finds the kind of its argument. `add_value(std::string_view)` is called for each allowed value
/// in order (a view into `text`) and answers whether the value is new.
/// Two things look odd and are intended: "%%" makes the template forget the kind it had, and the byte after a bare
/// "%s" is not looked at.
template <class AddValue>
constexpr template_check check_template(std::string_view text, AddValue&& add_value) {
    template_check result;
    template_scanner scanner(text);
    const auto check_conversion = [&result](char letter) {
        const config_arg_kind kind = conversion_kind(letter);
        if (result.kind != config_arg_kind::none && result.kind != kind) return template_fault::mixed_kinds;
        result.kind = kind;
        return template_fault::none;
    };
    const auto check_value = [&](std::string_view value, bool finished) {
        for (const char c : value)
            if (!is_ascii_alnum(c)) return template_fault::ill_formed_list;
        if (!finished) return template_fault::ends_early;
        result.value = value;
        if (value.empty()) return template_fault::empty_value;
        return add_value(value) ? template_fault::none : template_fault::duplicate_value;
    };
    while (const auto piece = scanner.next()) {
        switch (piece->kind) {
            case template_piece_kind::text:
            case template_piece_kind::swallowed_byte: break;
            case template_piece_kind::percent_sign: result.kind = config_arg_kind::none; break;
            case template_piece_kind::conversion: result.fault = check_conversion(piece->text.front()); break;
            case template_piece_kind::unknown_conversion: result.fault = template_fault::unknown_conversion; break;
            case template_piece_kind::allowed_value: result.fault = check_value(piece->text, true); break;
            case template_piece_kind::unfinished_value: result.fault = check_value(piece->text, false); break;
        }
        result.end = scanner.state();
        if (result.fault != template_fault::none) return result;
    }
    result.end = scanner.state();
    if (result.end == template_state::conversion || result.end == template_state::value_list)
        result.fault = template_fault::ends_early;
    return result;
}
