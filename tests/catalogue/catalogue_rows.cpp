// Prints what the tests that run the tool want to know of the tables. It says what the tool should show, from the
// tables and with its own formats.
#include "samples.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <span>
#include <stdexcept>
#include <string_view>

namespace {

constexpr const char* usage = R"(usage:
  catalogue_rows platforms
      each platform: name, table version, hardware code
  catalogue_rows listing PLATFORM [GROUP...]
      what 'list' prints, of these groups only
  catalogue_rows overlay PLATFORM [NUMBER]
      an overlay of all fragments (of one row) with each sample argument
  catalogue_rows numbers PLATFORM
      the numbers of the rows in table order
  catalogue_rows plain PLATFORM
      number and name of the rows that take no argument, in table order
  catalogue_rows arguments PLATFORM ROUND
      the item words of all rows that have a ROUNDth argument to try (from 0) that the tool can read back
  catalogue_rows stored PLATFORM ITEM-WORD...
      what 'status --partition' prints after 'set ITEM-WORD...', without the size of the source
)";

using words = std::span<const std::string_view>;

bool is_readable_char(char c) { return (is_ascii_alnum(c) && (c < '0' || c > '9')) || c == '_' || c == '-'; }

bool is_readable(std::string_view text) { return std::ranges::all_of(text, is_readable_char); }

// The argument as a word of the command line.
std::string argument_word(const config_item& item) {
    switch (item.arg_kind) {
        case config_arg_kind::int32: return fmt::format("a{}", std::get<std::int32_t>(item.arg));
        case config_arg_kind::uint32: return fmt::format("u{}", std::get<std::uint32_t>(item.arg));
        case config_arg_kind::string: return "s" + std::get<std::string>(item.arg);
        case config_arg_kind::none: break;
    }
    return "";
}

void print_platforms() {
    for (const hwknobs_plat* const plat : hwknobs_platforms())
        fmt::print("{} {} {:x}\n", plat->name, plat->version, plat->hw_code);
}

void print_listing_by_position(const hwknobs_plat& plat) {
    const auto rows = hwknobs_configs(plat);
    fmt::print("XPR config list (arch {}) num:{}\n", plat.name, rows.size());
    for (const hwknobs_config& row : rows)
        fmt::print("{:3} {} {}\n", number_of(plat, row), row.desc,
                   row.takes_argument() ? " [require an argument for customization]" : "");
}

void print_listing(const hwknobs_plat& plat, words groups) {
    if (plat.version != 2) return print_listing_by_position(plat);
    std::map<std::uint32_t, const hwknobs_config*> by_id;
    for (const hwknobs_config& row : hwknobs_configs(plat)) by_id[row.id] = &row;
    std::string summary = fmt::format("num:{}", by_id.size());
    if (!groups.empty()) {
        summary = "group selected:(";
        for (const std::string_view name : hwknobs_group_names)
            if (std::ranges::find(groups, name) != groups.end()) summary += fmt::format(" {} ", name);
        summary += ')';
    }
    fmt::print("XPR config list V2 (arch {}) {}\n", plat.name, summary);
    constexpr const char* line = "{:>3} {:<72} {:<40} {:<12} {:<8}\n";
    fmt::print(line, "ID", "DESC", "NAME", "ARG", "GROUP");
    fmt::print("{:-<144}\n", "");
    for (const auto& [id, row] : by_id) {
        const std::string_view group = get_hwknobs_group_name(row->group);
        if (!groups.empty() && std::ranges::find(groups, group) == groups.end()) continue;
        fmt::print(line, id, row->desc, row->name, row->takes_argument() ? "required" : "", group);
    }
}

// The line marks make the compiler's messages name the row. The empty root node in between keeps two fragments that
// are broken alone from being sound together.
void print_overlay(const hwknobs_plat& plat, unsigned int only) {
    std::fputs("/dts-v1/;\n/plugin/;\n", stdout);
    for (const hwknobs_config& row : hwknobs_configs(plat)) {
        const unsigned int number = number_of(plat, row);
        if (row.dt_fragment == nullptr || (only != 0 && only != number)) continue;
        for (const config_item& item : sample_items(row, number))
            fmt::print("/ {{ }};\n# 1 \"{} row {} {}\"\n{}\n", plat.name, number, argument_word(item),
                       item.format_item(row.dt_fragment));
    }
}

void print_numbers(const hwknobs_plat& plat) {
    for (const hwknobs_config& row : hwknobs_configs(plat)) fmt::print("{}\n", number_of(plat, row));
}

void print_plain(const hwknobs_plat& plat) {
    for (const hwknobs_config& row : hwknobs_configs(plat))
        if (!row.takes_argument()) fmt::print("{} {}\n", row.id, row.name);
}

// The samples with which a stored item can be read back at all; a free string first with all readable characters.
std::vector<std::string> stored_arguments(const hwknobs_config& row) {
    std::vector<std::string> arguments;
    for (const config_item& item : sample_items(row, row.id)) {
        const std::string word = argument_word(item);
        if (item.allowed_values.empty() || is_readable(word)) arguments.push_back(word);
        if (item.arg_kind == config_arg_kind::int32 && word.starts_with("a-")) arguments.emplace_back("a0");
        if (item.arg_kind != config_arg_kind::string || !item.allowed_values.empty()) continue;
        std::string readable = every_argument_char;
        std::erase_if(readable, [](char c) { return !is_readable_char(c); });
        arguments.insert(arguments.begin(), "s" + readable);
    }
    return arguments;
}

void print_arguments(const hwknobs_plat& plat, std::size_t round) {
    for (const hwknobs_config& row : hwknobs_configs(plat)) {
        if (!row.takes_argument()) continue;
        const auto arguments = stored_arguments(row);
        if (round < arguments.size()) fmt::print("{} {}\n", row.id, arguments[round]);
    }
}

// What is read back: a negative number as 0, a string with other characters than the readable ones as empty.
std::string read_back(const config_item& item, std::string_view word) {
    const std::string_view value = word.substr(1);
    switch (item.arg_kind) {
        case config_arg_kind::none: return "";
        case config_arg_kind::string: return fmt::format("[str={}]", is_readable(value) ? value : "");
        default: return fmt::format("[arg={}]", value.starts_with('-') ? "0" : value);
    }
}

void set_argument(config_item& item, std::string_view word) {
    const std::string value(word.substr(1));
    if (item.arg_kind == config_arg_kind::string) item.arg = value;
    else if (item.arg_kind == config_arg_kind::uint32) item.arg = static_cast<std::uint32_t>(std::stoul(value));
    else item.arg = static_cast<std::int32_t>(std::stol(value));
}

void print_stored(const hwknobs_plat& plat, words item_words) {
    std::map<std::string, std::string> plenv;
    std::string lines;
    for (std::size_t i = 0; i < item_words.size(); ++i) {
        const auto id = static_cast<unsigned int>(std::stoul(std::string(item_words[i])));
        const auto rows = hwknobs_configs(plat);
        config_item item(&*std::ranges::find(rows, id, &hwknobs_config::id), id);
        if (item.cfg->takes_argument()) set_argument(item, item_words[++i]);
        if (const auto pair = item.plenv_get()) plenv[pair->first] = pair->second;
        lines += fmt::format("   Activate  {}({}){} {}\n", item.cfg->name, id, read_back(item, item_words[i]),
                             item.cfg->desc);
    }
    fmt::print("<<partition>> hwknobs partition setting name default plat {} failure recovery 0\n== plenv ==\n",
               plat.name);
    for (const auto& [key, value] : plenv) fmt::print("  {}={}\n", key, value);
    fmt::print("== dts ==\n{}", lines);
}

unsigned int number_word(words arguments) {
    return arguments.empty() ? 0 : static_cast<unsigned int>(std::stoul(std::string(arguments[0])));
}

bool run(words arguments) {
    if (arguments.empty()) return false;
    const std::string_view command = arguments[0];
    if (command == "platforms") return print_platforms(), true;
    if (arguments.size() < 2) return false;
    const hwknobs_plat& plat = *hwknobs_get_plat(arguments[1].data());
    const words rest = arguments.subspan(2);
    if (command == "listing") print_listing(plat, rest);
    else if (command == "overlay") print_overlay(plat, number_word(rest));
    else if (command == "numbers") print_numbers(plat);
    else if (command == "plain") print_plain(plat);
    else if (command == "arguments") print_arguments(plat, number_word(rest));
    else if (command == "stored") print_stored(plat, rest);
    else return false;
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (run(arguments)) return 0;
    std::fputs(usage, stderr);
    return 2;
}
