// The rules that the rows of a table keep together, checked by the compiler.
#pragma once

#include "hwknobs_plat/catalogue/fragment.h"
#include "hwknobs_plat/catalogue/knob.h"
#include "hwknobs_plat/catalogue/rules.h"

#include <array>
#include <span>
#include <string_view>
#include <utility>

namespace catalogue {

/// The first broken rule of a table and its row, counted from 0.
struct verdict {
    int row = 0;
    rule broken = rule::none;
};

// The texts met so far, in a hash table: pairwise comparison exceeds the compilers' limit of constant evaluation. A
// text is a key or a name, or the name of a property with the label of its node.
template <class Value>
class text_map {
public:
    /// The value of the text, and whether the text is new; its value is then an empty one.
    constexpr std::pair<Value&, bool> add(std::string_view text, std::string_view label = {}) {
        for (std::size_t slot = hash(text, label) % slots_.size();; slot = (slot + 1) % slots_.size()) {
            entry& found = slots_[slot];
            if (found.text.empty()) {
                found = {text, label, {}};
                return {found.value, true};
            }
            if (found.text == text && found.label == label) return {found.value, false};
        }
    }

private:
    struct entry {
        std::string_view text;
        std::string_view label;
        Value value;
    };

    // Of a few characters only: the compiler takes every step of it.
    static constexpr std::size_t hash(std::string_view text, std::string_view label) {
        const std::size_t size = text.size();
        std::size_t result = size + label.size() * 7;
        for (const std::size_t at : {size / 5, size / 2, size * 4 / 5, size - 1})
            result = result * 31 + static_cast<unsigned char>(text[at]);
        return result;
    }

    std::array<entry, 1024> slots_{};
};

// What the rows of a table set, and for which choice. Of two rows that set the same key or property, selected together,
// one is without effect but shown as active: that is right for alternatives of one choice only.
class table_settings {
public:
    constexpr rule add(const hwknobs_config& row, choice among) {
        if (row.pl_setting.key != nullptr && !add_key(row.pl_setting, among)) return rule::key_is_set_by_one_choice;
        return row.dt_fragment != nullptr ? add_fragment(row.dt_fragment, among) : rule::none;
    }

    /// What the keys take in the bootloader's block, each once and with its longest value: the most that any selection
    /// can take.
    constexpr std::size_t plenv_size() const { return plenv_size_; }

private:
    struct owner {
        choice among;
        std::size_t plenv_size;
    };

    static constexpr bool may_set(owner& known, bool is_new, choice among) {
        if (is_new) known.among = among;
        return is_new || (known.among.name != nullptr && text_of(among.name) == known.among.name);
    }

    constexpr bool add_key(const hwknobs_config::plenv_pair& pair, choice among) {
        const std::string_view key = pair.key;
        const auto [known, is_new] = owners_.add(key);
        const std::size_t size = plenv_entry_size(key.size(), longest_value(pair.value));
        if (size > known.plenv_size) plenv_size_ += size - std::exchange(known.plenv_size, size);
        return may_set(known, is_new, among);
    }

    constexpr rule add_fragment(const char* fragment, choice among) {
        fragment_scanner scanner(fragment);
        bool sets_any = false;
        for (; const auto property = scanner.next(); sets_any = true) {
            const auto [known, is_new] = owners_.add(property->name, property->label);
            if (!may_set(known, is_new, among)) return rule::property_is_set_by_one_choice;
        }
        return sets_any && scanner.at_end() ? rule::none : rule::fragment_sets_properties_of_labels;
    }

    text_map<owner> owners_;
    std::size_t plenv_size_ = 0;
};

constexpr verdict check_together(std::span<const hwknobs_config> rows, std::span<const choice> choices) {
    table_settings settings;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (const rule broken = settings.add(rows[i], choices[i]); broken != rule::none)
            return {static_cast<int>(i), broken};
    if (settings.plenv_size() > plenv_capacity)
        return {static_cast<int>(rows.size()) - 1, rule::plenv_of_all_rows_fits_the_block};
    return {};
}

constexpr verdict check_version_0(std::span<const hwknobs_config> rows, std::span<const choice> choices) {
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (const rule broken = check_row(rows[i]); broken != rule::none) return {static_cast<int>(i), broken};
    return check_together(rows, choices);
}

constexpr verdict check_version_2(std::span<const hwknobs_config> rows, std::span<const choice> choices) {
    std::array<bool, 1024> seen_ids{};
    text_map<bool> seen_names;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto at = static_cast<int>(i);
        if (const rule broken = first_broken({check_row(rows[i]), check_identity(rows[i])}); broken != rule::none)
            return {at, broken};
        if (seen_ids[rows[i].id]) return {at, rule::id_is_unique};
        seen_ids[rows[i].id] = true;
        if (!seen_names.add(rows[i].name).second) return {at, rule::name_is_unique};
    }
    return check_together(rows, choices);
}

}  // namespace catalogue
