// Prints a line for each row of each table and each sample of its argument, in columns that are ended by tabs:
// platform; number of the sample, from 0; number of the row; description, name, "required" with an argument, group; the
// sample as a word of the command line; the fragment with it; then label and name of each property that the rules see
// in that.
#include "hwknobs_item/config_item.h"
#include "hwknobs_plat/catalogue/fragment.h"

#include <fmt/format.h>

#include <string>
#include <vector>

namespace {

/// The number by which `set` takes a row: its id, or in a version-0 table its position.
unsigned int number_of(const hwknobs_plat& plat, const hwknobs_config& row) {
    return plat.version == version_with_ids ? row.id : static_cast<unsigned int>(&row - plat.configs + 1);
}

/// No argument, the highest and the lowest number, each allowed value, or strings with every kind of character.
std::vector<std::string> sample_words(const config_item& item) {
    switch (item.arg_kind) {
        case config_arg_kind::none: return {""};
        case config_arg_kind::int32: return {"a2147483647", "a-2147483648"};
        case config_arg_kind::uint32: return {"u4294967295", "u0"};
        case config_arg_kind::string: break;
    }
    if (item.allowed_values.empty()) return {"saZ_-", "s09,"};
    std::vector<std::string> words;
    for (const std::string& value : item.allowed_values) words.push_back("s" + value);
    return words;
}

std::string fragment_with(config_item& item, const std::string& word) {
    if (item.cfg->dt_fragment == nullptr) return "";
    if (item.arg_kind == config_arg_kind::int32) item.arg_set_int32(std::stoi(word.substr(1)));
    if (item.arg_kind == config_arg_kind::uint32) item.arg_set_uint32(std::stoul(word.substr(1)));
    if (item.arg_kind == config_arg_kind::string) item.arg_set(word.c_str() + 1);
    return item.format_item(item.cfg->dt_fragment);
}

void print_row(const hwknobs_plat& plat, const hwknobs_config& row) {
    // The fourth row of the test platform takes an argument in both halves, and cannot be made an item.
    const bool can_be_selected = !row.takes_argument() || row.pl_setting.key == nullptr || row.dt_fragment == nullptr;
    const hwknobs_config shown{.pl_setting = {"k", ""}};
    config_item item(can_be_selected ? &row : &shown, number_of(plat, row));
    int n = 0;
    for (const std::string& word : sample_words(item)) {
        const std::string fragment = fragment_with(item, word);
        fmt::print("{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t", plat.name, n++, item.number, row.desc,
                   row.name != nullptr ? row.name : "", row.takes_argument() ? "required" : "",
                   get_hwknobs_group_name(row.group), word, fragment);
        catalogue::fragment_scanner scanner(fragment.c_str());
        while (const auto property = scanner.next()) fmt::print("{} {}\t", property->label, property->name);
        fmt::print("\n");
    }
}

}  // namespace

int main() {
    for (const hwknobs_plat* const plat : hwknobs_platforms())
        for (const hwknobs_config& row : hwknobs_configs(*plat)) print_row(*plat, row);
}
