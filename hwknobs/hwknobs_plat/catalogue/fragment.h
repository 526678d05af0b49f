// What an overlay fragment sets. Fragments of the catalogue have one form: "&label { property; property = value; };".
#pragma once

#include <optional>
#include <string_view>

namespace catalogue {

struct fragment_property {
    std::string_view label;
    std::string_view name;
};

/// Yields the properties of a fragment, as views into it.
class fragment_scanner {
public:
    constexpr explicit fragment_scanner(const char* fragment) : at_(fragment) {}

    /// The next property; nothing at the end, and where the text leaves the form.
    constexpr std::optional<fragment_property> next() {
        while (skip_blanks() != '\0') {
            if (label_.empty()) {
                if (!take('&')) break;
                label_ = take_name();
                if (label_.empty() || !take('{')) break;
            } else if (*at_ == '}') {
                if (!take('}') || !take(';')) break;
                label_ = {};
            } else {
                const std::string_view name = take_name();
                if (skip_blanks() == '=') skip_value();
                if (name.empty() || !take(';')) break;
                return fragment_property{label_, name};
            }
        }
        return std::nullopt;
    }

    /// Whether all of the text was read, and had the form.
    constexpr bool at_end() const { return *at_ == '\0' && label_.empty(); }

private:
    constexpr char skip_blanks() {
        while (*at_ == ' ') ++at_;
        return *at_;
    }

    constexpr bool take(char expected) {
        if (skip_blanks() != expected) return false;
        ++at_;
        return true;
    }

    constexpr std::string_view take_name() {
        const char* const start = at_;
        while ((*at_ >= 'a' && *at_ <= 'z') || *at_ == '-' || *at_ == '_' || (*at_ >= '0' && *at_ <= '9') ||
               (*at_ >= 'A' && *at_ <= 'Z'))
            ++at_;
        return {start, at_};
    }

    // A value ends at the first semicolon: strings of the catalogue hold none.
    constexpr void skip_value() {
        while (*at_ != ';' && *at_ != '\0') ++at_;
    }

    const char* at_;
    std::string_view label_;
};

}  // namespace catalogue
