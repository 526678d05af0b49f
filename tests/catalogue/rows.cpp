// Prints what the tests that run the tool want to know of the tables.
#include "hwknobs_item/config_item.h"
#include "hwknobs_plat/catalogue/fragment.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char* usage = R"(usage:
  catalogue_rows platforms           each platform: name, table version, hardware code
  catalogue_rows list PLATFORM       the rows by number: number, description, name, "required" with an argument, group
  catalogue_rows overlay PLATFORM    an overlay of all fragments with each sample argument
  catalogue_rows sets PLATFORM       label and name of each property in that overlay, as the rules of the tables see it
  catalogue_rows words PLATFORM N    the words that select by name each row that has an Nth sample to be read back
)";

/// The number by which `set` takes a row: its id, or in a version-0 table its position.
unsigned int number_of(const hwknobs_plat& plat, const hwknobs_config& row) {
    return plat.version == version_with_ids ? row.id : static_cast<unsigned int>(&row - plat.configs + 1);
}

/// The fourth row of the test platform takes an argument in both halves, and cannot be made an item.
bool can_be_selected(const hwknobs_config& row) {
    return !row.takes_argument() || row.pl_setting.key == nullptr || row.dt_fragment == nullptr;
}

using argument = decltype(config_item::arg);

/// The lowest and the highest number, each allowed value, or a string with every kind of character.
std::vector<argument> sample_arguments(const config_item& item) {
    switch (item.arg_kind) {
        case config_arg_kind::int32: return {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
        case config_arg_kind::uint32: return {std::numeric_limits<unsigned int>::max(), 0U};
        case config_arg_kind::string:
            if (item.allowed_values.empty()) return {std::string("aZ_-"), std::string("09,")};
            return {item.allowed_values.begin(), item.allowed_values.end()};
        case config_arg_kind::none: break;
    }
    return {0};
}

std::vector<config_item> sample_items(const hwknobs_plat& plat, const hwknobs_config& row) {
    if (!can_be_selected(row)) return {};
    std::vector<config_item> items;
    config_item item(&row, number_of(plat, row));
    for (const argument& sample : sample_arguments(item)) {
        item.arg = sample;
        items.push_back(item);
    }
    return items;
}

/// The argument as a word of the command line; none for what the tool cannot read back: signs, and digits of strings.
std::string readable_word(const config_item& item) {
    switch (item.arg_kind) {
        case config_arg_kind::int32: return fmt::format("a{}", std::max(std::get<std::int32_t>(item.arg), 0));
        case config_arg_kind::uint32: return fmt::format("u{}", std::get<std::uint32_t>(item.arg));
        case config_arg_kind::string:
            if (std::get<std::string>(item.arg).starts_with('0')) return "";
            return "s" + std::get<std::string>(item.arg);
        case config_arg_kind::none: break;
    }
    return "";
}

void print_platforms() {
    for (const hwknobs_plat* const plat : hwknobs_platforms())
        fmt::print("{} {} {:x}\n", plat->name, plat->version, plat->hw_code);
}

void print_list(const hwknobs_plat& plat) {
    std::map<unsigned int, const hwknobs_config*> rows;
    for (const hwknobs_config& row : hwknobs_configs(plat)) rows[number_of(plat, row)] = &row;
    const bool has_ids = plat.version == version_with_ids;
    for (const auto& [number, row] : rows) {
        fmt::print("{} {}", number, row->desc);
        if (has_ids) fmt::print(" {}", row->name);
        if (row->takes_argument()) fmt::print(" required");
        if (has_ids) fmt::print(" {}", get_hwknobs_group_name(row->group));
        fmt::print("\n");
    }
}

// The line marks make the compiler's messages name the row. The empty root node in between keeps two fragments that
// are broken alone from being sound together.
void print_overlay(const hwknobs_plat& plat) {
    fmt::print("/dts-v1/;\n/plugin/;\n");
    for (const hwknobs_config& row : hwknobs_configs(plat))
        for (const config_item& item : sample_items(plat, row))
            if (row.dt_fragment != nullptr)
                fmt::print("/ {{ }};\n# 1 \"{} row {}\"\n{}\n", plat.name, item.number,
                           item.format_item(row.dt_fragment));
}

void print_sets(const hwknobs_plat& plat) {
    for (const hwknobs_config& row : hwknobs_configs(plat))
        for (const config_item& item : sample_items(plat, row)) {
            catalogue::fragment_scanner scanner(item.cfg->dt_fragment != nullptr ? item.cfg->dt_fragment : "");
            while (const auto property = scanner.next()) fmt::print("{} {}\n", property->label, property->name);
        }
}

void print_words(const hwknobs_plat& plat, std::size_t n) {
    for (const hwknobs_config& row : hwknobs_configs(plat)) {
        const auto items = sample_items(plat, row);
        if (n >= items.size()) continue;
        const std::string word = readable_word(items[n]);
        if (row.takes_argument() == !word.empty()) fmt::print("{} {}\n", row.name, word);
    }
}

bool run(const std::vector<std::string_view>& words) {
    const std::string_view command = words.empty() ? "" : words[0];
    if (command == "platforms") return print_platforms(), true;
    if (words.size() < 2) return false;
    const hwknobs_plat& plat = *hwknobs_get_plat(words[1].data());
    if (command == "list") print_list(plat);
    else if (command == "overlay") print_overlay(plat);
    else if (command == "sets") print_sets(plat);
    else if (command == "words" && words.size() == 3) print_words(plat, std::stoul(words[2].data()));
    else return false;
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (run({argv + 1, argv + argc})) return 0;
    std::fputs(usage, stderr);
    return 2;
}
