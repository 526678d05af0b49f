// One selected setting with its argument.
#pragma once

#include "hwknobs_plat/config_template.h"
#include "hwknobs_plat/platform.h"

#include <cstdint>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

/// A value: copied freely, pointing at its catalogue entry, which it neither owns nor changes.
///
/// `arg` holds a signed 0 until one of the setters sets it, and afterwards the alternative that `arg_kind` names.
/// Nothing converts: reading an argument of another kind throws std::bad_variant_access.
struct config_item {
    std::uint32_t number;       ///< the id (version 2) or the row number as typed (version 0)
    const hwknobs_config* cfg;  ///< never null
    std::string_view name;      ///< the entry's name, with a null pointer when it has none
    config_arg_kind arg_kind = config_arg_kind::none;
    std::list<std::string> allowed_values;  ///< string items: in the template's order; empty allows any
    std::variant<std::int32_t, std::uint32_t, std::string> arg;

    /// Ends the process when the entry has neither a plenv key nor a fragment, or when its template is not valid.
    config_item(const hwknobs_config* cfg, unsigned int number);

    /// "none", "int32", "uint32" or "string".
    std::string arg_type_get_string() const;

    /// Set a number. False, with nothing changed, for items that take no number of that kind.
    bool arg_set_int32(std::int32_t value);
    bool arg_set_uint32(std::uint32_t value);

    /// Sets a string argument: at most 4095 letters, digits, ",", "-" and "_". False, with nothing changed, for other
    /// texts and for items that take no string; ends the process when the text is not one of the allowed values.
    bool arg_set(const char* in);

    /// Takes over the argument of an item of the same kind; false, with nothing changed, for another kind.
    bool arg_copy(const config_item& in);

    /// The one line that names the item, on the screen and on the device, from which it is read back later.
    std::string desc() const;

    /// `fmt` with the item's argument in place of the conversions. A "%d" prints the unsigned reading of the 32 bits,
    /// since that is what a device-tree cell holds.
    std::string format_item(const char* fmt) const;

    /// The bootloader key and its rendered value, if the entry has both.
    std::optional<std::pair<std::string, std::string>> plenv_get() const;

private:
    void format_validate();
    std::string argument_text() const;
    std::string render_argument(char conversion) const;
};
