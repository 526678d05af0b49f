#include "hwknobs_item/config_item.h"

#include "hwknobs_base/diagnostics.h"

#include <fmt/format.h>

#include <algorithm>

namespace {

constexpr std::size_t argument_size_limit = 4096;

bool is_argument_char(char c) { return is_ascii_alnum(c) || c == ',' || c == '-' || c == '_'; }

}  // namespace

config_item::config_item(const hwknobs_config* cfg, unsigned int number)
    : number(number),
      cfg(cfg),
      name(cfg->name != nullptr ? std::string_view(cfg->name) : std::string_view()) {
    constexpr assertion_site site{"hwknobs/hwknobs",
                                  "config_item::config_item(const struct hwknobs_config *, unsigned int)"};
    check_invariant(cfg->pl_setting.key != nullptr || cfg->dt_fragment != nullptr,
                    "(cfg->pl_setting.key != NULL) || (cfg->dt_fragment != NULL)", site, 139);
    format_validate();
}

std::string config_item::arg_type_get_string() const {
    switch (arg_kind) {
        case config_arg_kind::none: return "none";
        case config_arg_kind::int32: return "int32";
        case config_arg_kind::uint32: return "uint32";
        case config_arg_kind::string: break;
    }
    return "string";
}

bool config_item::arg_set_int32(std::int32_t value) {
    if (arg_kind != config_arg_kind::int32) return false;
    arg = value;
    return true;
}

bool config_item::arg_set_uint32(std::uint32_t value) {
    if (arg_kind != config_arg_kind::uint32) return false;
    arg = value;
    return true;
}

bool config_item::arg_set(const char* in) {
    if (arg_kind != config_arg_kind::string) return false;
    const std::string_view text(in);
    if (text.size() >= argument_size_limit || !std::ranges::all_of(text, is_argument_char)) return false;
    if (!allowed_values.empty() && std::ranges::find(allowed_values, text) == allowed_values.end())
        error("config %s not allowed '%s'", name.data(), in);
    arg = std::string(text);
    return true;
}

bool config_item::arg_copy(const config_item& in) {
    if (in.arg_kind != arg_kind) return false;
    arg = in.arg;
    return true;
}

std::string config_item::argument_text() const {
    switch (arg_kind) {
        case config_arg_kind::none: return "";
        case config_arg_kind::int32: return fmt::format("[arg={}]", std::get<std::int32_t>(arg));
        case config_arg_kind::uint32: return fmt::format("[arg={}]", std::get<std::uint32_t>(arg));
        case config_arg_kind::string: return fmt::format("[str={}]", std::get<std::string>(arg));
    }
    error("Unsupport type code %s", arg_type_get_string().c_str());
}

std::string config_item::desc() const {
    return fmt::format("Activate  {}({}){} {}", name, number, argument_text(), cfg->desc);
}

void config_item::format_validate() {
    if (!cfg->takes_argument()) return;
    const char* const value = cfg->pl_setting.value;
    const char* const fragment = cfg->dt_fragment;
    constexpr assertion_site site{"hwknobs/hwknobs_img", "void config_item::format_validate()"};
    check_invariant((value != nullptr) != (fragment != nullptr), "check_string == NULL", site, 919);

    const template_check check = check_template(value != nullptr ? value : fragment, [this](std::string_view allowed) {
        if (std::ranges::find(allowed_values, allowed) != allowed_values.end()) return false;
        allowed_values.emplace_back(allowed);
        return true;
    });
    switch (check.fault) {
        case template_fault::none: break;
        case template_fault::unknown_conversion: error("unknown parameter value");
        case template_fault::mixed_kinds:
            error("config %s format string contain multiple in-compatible formatter", name.data());
        case template_fault::empty_value:
            error("config %s format string parse error, allowed string value size = 0", name.data());
        case template_fault::duplicate_value:
            error("config %s format string parse error, duplicate entry %s", name.data(),
                  std::string(check.value).c_str());
        case template_fault::ill_formed_list:
            error("config %s format string parse error, ill-form string formatter", name.data());
        case template_fault::ends_early:
            error("config %s format string end unexpectedly(state %d)", name.data(), static_cast<int>(check.end));
    }
    arg_kind = check.kind;
}

std::string config_item::render_argument(char conversion) const {
    switch (conversion) {
        case 'd': return fmt::format("{}", static_cast<std::uint32_t>(std::get<std::int32_t>(arg)));
        case 'u': return fmt::format("{}", std::get<std::uint32_t>(arg));
        case 'x': return fmt::format("{:x}", std::get<std::uint32_t>(arg));
        default: return std::get<std::string>(arg);
    }
}

std::string config_item::format_item(const char* fmt) const {
    std::string out;
    template_scanner scanner(fmt);
    while (const auto piece = scanner.next()) {
        switch (piece->kind) {
            case template_piece_kind::text:
            case template_piece_kind::percent_sign: out += piece->text; break;
            case template_piece_kind::conversion: out += render_argument(piece->text.front()); break;
            case template_piece_kind::unknown_conversion:
            case template_piece_kind::swallowed_byte:
            case template_piece_kind::allowed_value:
            case template_piece_kind::unfinished_value: break;
        }
    }
    return out;
}

std::optional<std::pair<std::string, std::string>> config_item::plenv_get() const {
    const auto& [key, value] = cfg->pl_setting;
    if (key == nullptr || value == nullptr) return std::nullopt;
    return std::pair(std::string(key), format_item(value));
}
