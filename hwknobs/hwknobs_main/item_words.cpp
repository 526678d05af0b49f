#include "hwknobs_main/item_words.h"

#include "hwknobs_base/diagnostics.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

constexpr long config_number_max = 1024;

struct selected_config {
    const hwknobs_config* config;
    unsigned int number;
};

unsigned int parse_config_number(const char* word) {
    errno = 0;
    const long number = std::strtol(word, nullptr, 10);
    if (errno != 0) error("conversion error %s", word);
    if (number < 1 || number > config_number_max) error("invalid config number %s", word);
    return static_cast<unsigned int>(number);
}

selected_config find_by_name(const hwknobs_plat& plat, const char* word) {
    const auto configs = hwknobs_configs(plat);
    const auto found = std::ranges::find_if(configs, [word](const hwknobs_config& config) {
        return config.name != nullptr && std::string_view(config.name) == word;
    });
    if (found == configs.end()) error("Cannot find this config name: %s", word);
    return {&*found, found->id};
}

selected_config find_by_id(const hwknobs_plat& plat, const char* word) {
    const unsigned int number = parse_config_number(word);
    const hwknobs_config* const config = get_config_by_id(&plat, number);
    if (config == nullptr) error("Cannot find this config ID: %lu", static_cast<unsigned long>(number));
    return {config, number};
}

// The end row can still be named here: it is refused as an item, like any row without a setting.
selected_config find_by_position(const hwknobs_plat& plat, const char* word) {
    const unsigned int number = parse_config_number(word);
    if (number > hwknobs_configs(plat).size() + 1) error("invalid config number %s", word);
    return {plat.configs + number - 1, number};
}

selected_config find_config(const hwknobs_plat& plat, const char* word, bool by_name) {
    if (plat.version == version_with_ids) return by_name ? find_by_name(plat, word) : find_by_id(plat, word);
    if (by_name) error("This platform does not support set in string");
    return find_by_position(plat, word);
}

[[noreturn]] void argument_mismatch(const config_item& item) {
    error("argument type mismatch, expect %s", item.arg_type_get_string().c_str());
}

void set_signed_argument(config_item& item, const char* value) {
    int number = 0;
    try {
        number = std::stoi(value, nullptr, 0);
    } catch (const std::invalid_argument&) {
        error("not a number %s", value);
    } catch (const std::out_of_range&) {
        error("config number out of range %s", value);
    }
    if (item.arg_set_int32(number)) return;
    if (number < 0 || !item.arg_set_uint32(static_cast<std::uint32_t>(number))) argument_mismatch(item);
}

[[noreturn]] void uint32_out_of_range(const char* value) { error("config number out of range (uint32) %s", value); }

void set_unsigned_argument(config_item& item, const char* value) {
    unsigned long number = 0;
    try {
        number = std::stoul(value, nullptr, 0);
    } catch (const std::invalid_argument&) {
        error("not a number %s", value);
    } catch (const std::out_of_range&) {
        uint32_out_of_range(value);
    }
    if (number > std::numeric_limits<std::uint32_t>::max()) uint32_out_of_range(value);
    if (!item.arg_set_uint32(static_cast<std::uint32_t>(number))) argument_mismatch(item);
}

void set_argument(config_item& item, const char* word) {
    const char* const value = word + 1;
    switch (word[0]) {
        case 'a': return set_signed_argument(item, value);
        case 'u': return set_unsigned_argument(item, value);
        case 's':
            if (!item.arg_set(value))
                error("Invalid argument '%s' or argument type mismatch(expect %s)", value,
                      item.arg_type_get_string().c_str());
            return;
        default: error("'%s' argument should start with 'a' | 'u' | 's' : %s", item.name.data(), word);
    }
}

}  // namespace

std::vector<config_item> parse_item_set(int item_argc, char** item_argv, const char* plat, bool take_args,
                                        bool by_name) {
    std::vector<config_item> items;
    if (item_argc < 1) return items;
    const hwknobs_plat& platform = *hwknobs_get_plat(plat);
    for (int i = 0; i < item_argc; ++i) {
        const auto [config, number] = find_config(platform, item_argv[i], by_name);
        config_item item(config, number);
        if (std::ranges::find(items, config, &config_item::cfg) != items.end())
            error("Repeat input config :%s(%lu)", std::string(item.name).c_str(), static_cast<unsigned long>(number));
        if (take_args && config->takes_argument()) {
            if (++i == item_argc) error("'%s' need an argument.", item.name.data());
            set_argument(item, item_argv[i]);
        }
        items.push_back(std::move(item));
    }
    return items;
}
