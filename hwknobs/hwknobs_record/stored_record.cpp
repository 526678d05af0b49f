#include "hwknobs_record/stored_record.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_plat/timestamp.h"

#include <fmt/format.h>
#include <regex.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace {

constexpr const char* function_name = "save_hwknobs_effect_status";

// Longer property values are not taken.
constexpr std::size_t value_size_limit = 4096;

// A pattern that begins with the literal text `start`, and has one capture, of which `before` stands right in front and
// one character behind.
//
// The C library is asked for the whole match alone, and the capture is cut out of it: to find a capture itself, the
// library goes over each match a second time, backwards, which takes five times as long as all other work of a read.
// REG_STARTEND, which Android's C library has too, spares it looking for the end of the text with each line.
class pattern {
public:
    // `label` begins the message with which the process ends when the pattern does not compile.
    pattern(const char* text, std::string_view start, std::string_view before, const char* label)
        : start_(start),
          before_(before) {
        const int result = regcomp(&regex_, text, REG_EXTENDED);
        if (result == 0) return;
        std::array<char, 128> reason{};
        regerror(result, &regex_, reason.data(), reason.size());
        error("%s: %s compile failed: %s\n", function_name, label, reason.data());
    }
    ~pattern() { regfree(&regex_); }
    pattern(const pattern&) = delete;
    pattern& operator=(const pattern&) = delete;

    struct match {
        std::string_view capture;
        std::size_t end;  ///< where the whole match ends
    };
    std::optional<match> find(std::string_view text) const {
        const std::size_t start = text.find(start_);  // many times faster than to let the library look for it
        if (start == std::string_view::npos) return std::nullopt;
        regmatch_t whole{.rm_so = static_cast<regoff_t>(start), .rm_eo = static_cast<regoff_t>(text.size())};
        errno = 0;
        if (regexec(&regex_, text.data(), 1, &whole, REG_STARTEND) != 0) {
            // Some C libraries answer REG_NOMATCH then: taken for one, it would drop stored items without a word.
            if (errno == ENOMEM) error("%s: no memory to search the stored items", function_name);
            return std::nullopt;
        }
        const auto end = static_cast<std::size_t>(whole.rm_eo);
        std::string_view capture = text.substr(0, end).substr(static_cast<std::size_t>(whole.rm_so));
        capture.remove_prefix(capture.find(before_) + before_.size());
        capture.remove_suffix(1);
        return match{capture, end};
    }
    // The capture, or the empty text without a match.
    std::string capture(std::string_view text) const {
        const auto found = find(text);
        return found ? std::string(found->capture) : std::string();
    }

private:
    regex_t regex_{};
    std::string_view start_;
    std::string_view before_;
};

class item_reader {
public:
    std::optional<pattern::match> next_line(std::string_view text) const { return line_.find(text); }

    // Nothing, after a warning, when the platform has no such id.
    std::optional<config_item> read(const hwknobs_plat* plat, std::string_view value) const {
        const auto id = static_cast<unsigned int>(std::strtoul(index_.capture(value).c_str(), nullptr, 10));
        const hwknobs_config* const config = get_config_by_id(plat, id);
        if (config == nullptr) {
            std::puts("warn: unknown option id, skip");
            return std::nullopt;
        }
        config_item item(config, id);
        read_argument(item, value);
        return item;
    }

private:
    void read_argument(config_item& item, std::string_view value) const {
        switch (item.arg_kind) {
            case config_arg_kind::none: return;
            case config_arg_kind::int32: {
                const std::string digits = numeric_.capture(value);
                item.arg_set_int32(static_cast<std::int32_t>(std::strtol(digits.c_str(), nullptr, 10)));
                return;
            }
            case config_arg_kind::uint32: {
                const std::string digits = numeric_.capture(value);
                if (!item.arg_set_uint32(static_cast<std::uint32_t>(std::strtoul(digits.c_str(), nullptr, 10))))
                    error("nivalid argument, expect %s", item.arg_type_get_string().c_str());
                return;
            }
            case config_arg_kind::string:
                if (!item.arg_set(string_.capture(value).c_str()))
                    error("invalid argument, expect %s", item.arg_type_get_string().c_str());
                return;
        }
    }

    // They are narrow on purpose: a numeric argument is digits only, so that a negative one reads as 0; a string
    // argument is letters, "_" and "-" only, so that any other reads as empty.
    pattern line_{R"re(item[^=]* = "([^"]*)")re", "item", R"( = ")", "Regex"};
    // Never read, as the id decides which setting is meant. Compiled all the same: a C library that cannot compile it
    // ends the run with the message that belongs to it.
    pattern command_{R"(Activate  ([a-zA-Z0-9_-]*)\()", "Activate  ", "Activate  ", "regex_command"};
    pattern index_{R"(\(([0-9]*)\))", "(", "(", "regex_index"};
    pattern numeric_{R"(\[arg=([0-9]*)\])", "[arg=", "[arg=", "regex_arg"};
    pattern string_{R"(\[str=([a-zA-Z_-]*)\])", "[str=", "[str=", "regex_str"};
};

}  // namespace

std::string compose_record(std::string_view command, std::string_view platform,
                           std::optional<bool> boot_failure_recovery, std::span<const config_item> items) {
    const auto property = [](std::string_view name, std::string_view value) {
        return fmt::format("    {} = \"{}\";\n", name, value);
    };
    std::string record = "&chosen {\n  hwknobs {\n";
    record += property(stored_record::platform, platform);
    record += property(stored_record::command, command);
    record += property(stored_record::timestamp, hwknobs_get_timestamp());
    if (boot_failure_recovery)
        record += property(stored_record::boot_failure_recovery, *boot_failure_recovery ? "true" : "false");
    for (std::size_t i = 0; i < items.size(); ++i)
        record += property(fmt::format("{}{}", stored_record::item, i), items[i].desc());
    return record + "  };\n};\n";
}

void save_hwknobs_effect_status(const char* plat, const char* dts, std::vector<config_item>& items) {
    const item_reader reader;
    items.clear();
    const hwknobs_plat* const platform = hwknobs_get_plat(plat);
    for (std::string_view rest = dts; !rest.empty();) {
        const auto line = reader.next_line(rest);
        if (!line) return;
        // The search advances only past items that were taken: a rejected line is found again, forever.
        if (line->capture.size() >= value_size_limit) continue;
        auto item = reader.read(platform, line->capture);
        if (!item) continue;
        items.push_back(std::move(*item));
        rest.remove_prefix(line->end);
    }
}
