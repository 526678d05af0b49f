// The commands that show what can be selected: list, list-group and plat-list.
#include "hwknobs_base/diagnostics.h"
#include "hwknobs_main/commands.h"
#include "hwknobs_main/options.h"
#include "hwknobs_plat/platform.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

using u64 = std::uint64_t;

constexpr u64 group_bit(hwknobs_group group) { return u64{1} << static_cast<std::uint32_t>(group); }

// The bit of a group that can be asked for; an unknown name is reported and gives bit 0.
u64 parse_group(std::string_view name) {
    for (const hwknobs_group group : hwknobs_groups)
        if (group != hwknobs_group::UNKNOWN && name == get_hwknobs_group_name(group)) return group_bit(group);
    std::printf("Unknown group: %s\n", std::string(name).c_str());
    return group_bit(hwknobs_group::UNKNOWN);
}

u64 parse_group_options(int argc, char** argv) {
    // The options of `clear` are accepted too, and have no effect.
    static constexpr option long_options[] = {
        {"group", required_argument, nullptr, 'g'},
        {"all", no_argument, nullptr, 0},
        {"hwknobs-data", no_argument, nullptr, 0},
        {"ddr-data", no_argument, nullptr, 0},
        {nullptr, 0, nullptr, 0},
    };
    u64 mask = 0;
    for (;;) {
        const int result = getopt_long(argc, argv, "g:", long_options, nullptr);
        if (result == -1) return mask;
        if (result == 'g') mask |= parse_group(optarg);
    }
}

void print_version_0(const hwknobs_plat& plat) {
    const auto configs = hwknobs_configs(plat);
    std::printf("XPR config list (arch %s) num:%d\n", plat.name, static_cast<int>(configs.size()));
    int number = 0;
    for (const hwknobs_config& config : configs)
        std::printf("%3d %s %s\n", ++number, config.desc,
                    config.takes_argument() ? " [require an argument for customization]" : "");
}

// " CPU  GPU " for the groups of the mask.
std::array<char, 128> group_text(u64 mask) {
    std::array<char, 128> text{};
    std::size_t used = 0;
    for (const hwknobs_group group : hwknobs_groups) {
        if ((mask & group_bit(group)) == 0) continue;
        const int length = std::snprintf(text.data() + used, text.size() - used, " %s ", get_hwknobs_group_name(group));
        check_invariant(length > 0, "sprintf(buf + strlen(buf), \" %s \", get_hwknobs_group_name(i)) > 0",
                        {"hwknobs/hwknobs_main", "void __group_msg(char *, const char **, u64)"}, 103);
        used += static_cast<std::size_t>(length);
    }
    return text;
}

std::array<char, 256> list_summary(std::size_t config_num, u64 mask) {
    constexpr assertion_site site{"hwknobs/hwknobs_main", "void __print_list(const struct hwknobs_plat *, u64)"};
    std::array<char, 256> msg{};
    if (mask == 0) {
        check_invariant(std::snprintf(msg.data(), msg.size(), "num:%u", static_cast<unsigned int>(config_num)) > 0,
                        "snprintf(msg, sizeof(msg), \"num:%u\", config_num) > 0", site, 134);
    } else {
        check_invariant(std::snprintf(msg.data(), msg.size(), "group selected:(%s)", group_text(mask).data()) > 0,
                        "snprintf(msg, sizeof(msg), \"group selected:(%s)\", grp) > 0", site, 131);
    }
    return msg;
}

struct row_id {
    int id;
    int index;
};

// Tables are not kept in the order of ids; listings are.
std::vector<row_id> sorted_by_id(std::span<const hwknobs_config> configs) {
    std::vector<row_id> rows;
    rows.reserve(configs.size());
    for (const hwknobs_config& config : configs)
        rows.push_back({static_cast<int>(config.id), static_cast<int>(rows.size())});
    std::ranges::sort(rows, [](const row_id& a, const row_id& b) { return cmp(&a.id, &b.id) < 0; });
    return rows;
}

struct listing_row {
    std::string_view id;
    std::string_view desc;
    std::string_view name;
    std::string_view arg;
    std::string_view group;
};

struct column {
    std::size_t start;
    std::size_t width;

    bool holds(std::string_view text) const { return text.size() <= width; }
};
constexpr column id_column{0, 3};
constexpr column desc_column{4, 72};
constexpr column name_column{77, 40};
constexpr column arg_column{118, 12};
constexpr column group_column{131, 8};

// "%3s %-72s %-40s %-12s %-8s\n". A listing is hundreds of lines of one layout: where all texts fit, they are copied
// into a line of blanks, as printf() would take longer than all the rest. Nothing is cut: a long text pushes the rest
// of its line to the right. Lines go to stdio's buffer one by one: to collect a whole listing costs more in fresh pages
// of memory than it saves in writes.
class row_printer {
public:
    void print(const listing_row& row) {
        if (!fits(row)) {
            std::puts(fmt::format("{:>3} {:<72} {:<40} {:<12} {:<8}", row.id, row.desc, row.name, row.arg, row.group)
                          .c_str());
            return;
        }
        line_.fill(' ');
        put(id_column.width - row.id.size(), row.id);
        put(desc_column.start, row.desc);
        put(name_column.start, row.name);
        put(arg_column.start, row.arg);
        put(group_column.start, row.group);
        line_.back() = '\n';
        std::fwrite(line_.data(), 1, line_.size(), stdout);
    }

private:
    static bool fits(const listing_row& row) {
        return id_column.holds(row.id) && desc_column.holds(row.desc) && name_column.holds(row.name) &&
               arg_column.holds(row.arg) && group_column.holds(row.group);
    }

    void put(std::size_t start, std::string_view text) { text.copy(line_.data() + start, text.size()); }

    std::array<char, group_column.start + group_column.width + 1> line_;
};

// NOLINTNEXTLINE(bugprone-reserved-identifier)
void __print_list(const hwknobs_plat* plat, u64 mask) {
    const auto configs = hwknobs_configs(*plat);
    std::printf("XPR config list V2 (arch %s) %s\n", plat->name, list_summary(configs.size(), mask).data());
    row_printer rows;
    rows.print({"ID", "DESC", "NAME", "ARG", "GROUP"});
    std::puts(std::string(144, '-').c_str());
    for (const row_id& row : sorted_by_id(configs)) {
        const hwknobs_config& config = configs[static_cast<std::size_t>(row.index)];
        if (mask != 0 && (mask & group_bit(config.group)) == 0) continue;
        std::array<char, 12> id;
        const char* const id_end = std::to_chars(id.begin(), id.end(), row.id).ptr;
        rows.print({.id = {id.data(), id_end},
                    .desc = config.desc,
                    .name = config.name,
                    .arg = config.takes_argument() ? "required" : "",
                    .group = get_hwknobs_group_name(config.group)});
    }
}

}  // namespace

int run_list_command(const global_options& global, int argc, char** argv) {
    const hwknobs_plat* const plat = hwknobs_get_plat(global.plat);
    if (plat->version != version_with_ids) {
        print_version_0(*plat);
        return 0;
    }
    const u64 mask = parse_group_options(argc, argv);
    if ((mask & group_bit(hwknobs_group::UNKNOWN)) == 0) __print_list(plat, mask);
    return 0;
}

int run_list_group_command(const global_options& global, int /*argc*/, char** /*argv*/) {
    const hwknobs_plat* const plat = hwknobs_get_plat(global.plat);
    if (plat->version != version_with_ids) {
        std::puts("This platfrom does not support groups.");
        return 0;
    }
    std::printf("XPR config list group (arch %s) \n", plat->name);
    std::printf("%3s %8s\n", "GID", "NAME");
    std::puts("----------------");
    for (const hwknobs_group group : hwknobs_groups)
        if (group != hwknobs_group::UNKNOWN)
            std::printf("%3d %8s\n", static_cast<int>(group), get_hwknobs_group_name(group));
    return 0;
}

int run_plat_list_command(const global_options& /*global*/, int /*argc*/, char** /*argv*/) {
    hwknobs_plat_list();
    return 0;
}
