// The rules that each row of a table keeps, checked by the compiler with the tool's own template code. Why each of them
// is there is told in docs/catalogue.md.
#pragma once

#include "hwknobs_plat/config_template.h"
#include "hwknobs_plat/platform.h"
#include "hwknobs_plat/plenv_text.h"

#include <array>
#include <string_view>

namespace catalogue {

enum class rule {
    none,
    row_has_a_description,
    desc_fits_72_columns,
    desc_holds_plain_text_only,
    desc_reads_like_no_argument_or_index,
    name_is_lower_case_with_underscores,
    name_fits_40_columns,
    name_is_unique,
    id_is_from_1_to_1023,
    id_is_unique,
    group_is_known,
    key_and_value_go_together,
    row_sets_something,
    argument_row_has_exactly_one_template,
    argument_row_has_a_conversion,
    row_without_argument_has_no_conversion,
    template_is_valid,
    argument_row_has_no_percent_sign,
    unsigned_argument_is_hexadecimal,
    allowed_values_are_read_back,
    blank_follows_bare_string_conversion,
    no_string_follows_a_free_one,
    plenv_key_is_read_back,
    plenv_value_is_read_back,
    fragment_has_no_line_of_an_item,
    fragment_fits_into_cdata,
    plenv_of_all_rows_fits_the_block,
    fragment_sets_properties_of_labels,
    key_is_set_by_one_choice,
    property_is_set_by_one_choice,
};

constexpr std::string_view text_of(const char* text) { return text != nullptr ? std::string_view(text) : ""; }

constexpr bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

// What check_template() says, with what the rules want to know besides.
struct template_facts {
    template_check check;
    std::size_t longest_value = 0;  ///< of the allowed values
    bool values_are_letters = true;
};

constexpr template_facts inspect_template(std::string_view text) {
    template_facts facts;
    std::array<std::string_view, 64> values{};
    std::size_t count = 0;
    facts.check = check_template(text, [&](std::string_view value) {
        for (std::size_t i = 0; i < count; ++i)
            if (values[i] == value) return false;
        values[count++] = value;
        if (value.size() > facts.longest_value) facts.longest_value = value.size();
        for (const char c : value)
            if (is_digit(c)) facts.values_are_letters = false;
        return true;
    });
    return facts;
}

// Texts are walked once each, by pointer: the compiler takes every step of it for every row of every table.
constexpr bool starts_with(const char* text, std::string_view part) {
    for (const char c : part)
        if (*text++ != c) return false;
    return true;
}

constexpr bool starts_with_index(const char* text) {
    if (*text++ != '(') return false;
    while (is_digit(*text)) ++text;
    return *text == ')';
}

constexpr rule check_description(const char* desc) {
    if (desc == nullptr || *desc == '\0') return rule::row_has_a_description;
    const char* at = desc;
    for (; *at != '\0'; ++at) {
        const char c = *at;
        if (c >= 'a' && c <= 'z') continue;
        if (c < ' ' || c > '~' || c == '"' || c == '\\') return rule::desc_holds_plain_text_only;
        if (c == '-' && at[1] == '-') return rule::desc_holds_plain_text_only;
        if (c == '(' && starts_with_index(at)) return rule::desc_reads_like_no_argument_or_index;
        if (c == '[' && (starts_with(at, "[arg=") || starts_with(at, "[str=")))
            return rule::desc_reads_like_no_argument_or_index;
    }
    return at - desc > 72 ? rule::desc_fits_72_columns : rule::none;
}

// The largest size of a rendered value: a number has 10 digits, or 8 in hexadecimal. A free string counts as empty:
// only it can make a selection too large, which is refused when it is written.
constexpr std::size_t longest_value(std::string_view value) {
    const std::size_t longest_string = inspect_template(value).longest_value;
    std::size_t size = 0;
    template_scanner scanner(value);
    while (const auto piece = scanner.next()) {
        if (piece->kind == template_piece_kind::text || piece->kind == template_piece_kind::percent_sign)
            size += piece->text.size();
        if (piece->kind != template_piece_kind::conversion) continue;
        const char letter = piece->text.front();
        size += letter == 's' ? longest_string : letter == 'x' ? 8 : 10;
    }
    return size;
}

// Whatever the argument, the value keeps to the characters that are read back: the text around the conversions does,
// numbers do, and arguments are letters, digits, ",", "-" and "_".
constexpr bool value_is_read_back(std::string_view value) {
    template_scanner scanner(value);
    while (const auto piece = scanner.next()) {
        if (piece->kind == template_piece_kind::percent_sign) return false;
        if (piece->kind != template_piece_kind::text) continue;
        for (const char c : piece->text)
            if (!is_plenv_value_char(c)) return false;
    }
    return true;
}

constexpr rule check_plenv(const hwknobs_config::plenv_pair& pair) {
    if ((pair.key == nullptr) != (pair.value == nullptr)) return rule::key_and_value_go_together;
    if (pair.key == nullptr) return rule::none;
    const std::string_view key = pair.key;
    if (key.empty()) return rule::plenv_key_is_read_back;
    for (const char c : key)
        if (!is_plenv_key_char(c)) return rule::plenv_key_is_read_back;
    return value_is_read_back(pair.value) ? rule::none : rule::plenv_value_is_read_back;
}

// Of bare string conversions in a fragment: in place of the swallowed byte there has to stand a blank, or it would be
// a quote sooner or later. And where the argument is "item", the reader takes the rest up to the next string for a line
// of its own: the string that holds the conversion is the last.
constexpr rule check_free_strings(std::string_view fragment) {
    template_scanner scanner(fragment);
    while (const auto piece = scanner.next()) {
        if (piece->kind != template_piece_kind::swallowed_byte) continue;
        if (piece->text != " ") return rule::blank_follows_bare_string_conversion;
        const std::string_view rest(piece->text.end(), fragment.end());
        if (rest.find('"') != rest.rfind('"')) return rule::no_string_follows_a_free_one;
    }
    const bool ends_bare = scanner.state() == template_state::after_string;
    return ends_bare ? rule::blank_follows_bare_string_conversion : rule::none;
}

// One way to print a number without a sign, in cells as in bootloader values: 0x%x.
constexpr bool unsigned_is_hexadecimal(std::string_view text) {
    template_scanner scanner(text);
    std::string_view before;
    while (const auto piece = scanner.next()) {
        if (piece->kind == template_piece_kind::conversion) {
            const char letter = piece->text.front();
            if (letter == 'u' || (letter == 'x' && !before.ends_with("0x"))) return false;
        }
        before = piece->text;
    }
    return true;
}

constexpr bool takes_nothing(std::string_view text) {
    const template_check check = inspect_template(text).check;
    return check.fault == template_fault::none && check.kind == config_arg_kind::none;
}

constexpr rule check_templates(const hwknobs_config& row) {
    const char* const value = row.pl_setting.value;
    const char* const fragment = row.dt_fragment;
    if (!row.takes_argument())
        return takes_nothing(text_of(value)) ? rule::none : rule::row_without_argument_has_no_conversion;
    if ((value != nullptr) == (fragment != nullptr)) return rule::argument_row_has_exactly_one_template;
    const std::string_view text = value != nullptr ? value : fragment;
    const template_facts facts = inspect_template(text);
    if (facts.check.fault != template_fault::none) return rule::template_is_valid;
    if (contains(text, "%%")) return rule::argument_row_has_no_percent_sign;
    if (facts.check.kind == config_arg_kind::none) return rule::argument_row_has_a_conversion;
    if (!unsigned_is_hexadecimal(text)) return rule::unsigned_argument_is_hexadecimal;
    if (!facts.values_are_letters) return rule::allowed_values_are_read_back;
    return check_free_strings(text_of(fragment));
}

constexpr rule first_broken(std::initializer_list<rule> rules) {
    for (const rule broken : rules)
        if (broken != rule::none) return broken;
    return rule::none;
}

constexpr rule check_fragment(const char* fragment, bool takes_argument) {
    for (const char* at = fragment; *at != '\0'; ++at) {
        if (*at == 'i' && starts_with(at, "item")) return rule::fragment_has_no_line_of_an_item;
        if (*at == ']' && starts_with(at, "]]>")) return rule::fragment_fits_into_cdata;
        if (*at == '%' && !takes_argument && !takes_nothing(fragment))
            return rule::row_without_argument_has_no_conversion;
    }
    return rule::none;
}

constexpr rule check_setting(const hwknobs_config& row) {
    if (row.dt_fragment != nullptr) return check_fragment(row.dt_fragment, row.takes_argument());
    return row.pl_setting.key != nullptr ? rule::none : rule::row_sets_something;
}

constexpr rule check_identity(const hwknobs_config& row) {
    const std::string_view name = text_of(row.name);
    if (name.empty()) return rule::name_is_lower_case_with_underscores;
    if (name.size() > 40) return rule::name_fits_40_columns;
    for (const char c : name)
        if (!(c >= 'a' && c <= 'z') && !is_digit(c) && c != '_') return rule::name_is_lower_case_with_underscores;
    if (row.id < 1 || row.id > 1023) return rule::id_is_from_1_to_1023;
    const bool known = row.group != hwknobs_group::UNKNOWN && *get_hwknobs_group_name(row.group) != '\0';
    return known ? rule::none : rule::group_is_known;
}

// The fourth row of the test platform takes an argument in both halves; the tool refuses to select it, and tests want
// to see that.
constexpr bool is_the_exception(const hwknobs_config& row) {
    return text_of(row.desc) == "Dummy 4 OFF" && text_of(row.pl_setting.key) == "GG";
}

constexpr rule check_row(const hwknobs_config& row) {
    if (is_the_exception(row)) return rule::none;
    return first_broken(
        {check_description(row.desc), check_setting(row), check_templates(row), check_plenv(row.pl_setting)});
}

}  // namespace catalogue
