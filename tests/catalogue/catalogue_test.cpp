// What holds for the tables as a whole. The rules for single rows are checked by the compiler, in rules.h.
#include "hwknobs_img/plenv_block.h"
#include "samples.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsNull;

constexpr std::size_t platform_count = 24;
constexpr std::size_t first_with_ids = 16;

std::vector<const hwknobs_plat*> platforms(std::size_t first, std::size_t end) {
    const auto all = hwknobs_platforms();
    EXPECT_EQ(all.size(), platform_count);
    return {all.begin() + static_cast<std::ptrdiff_t>(first), all.begin() + static_cast<std::ptrdiff_t>(end)};
}
std::vector<const hwknobs_plat*> platforms_without_ids() { return platforms(0, first_with_ids); }
std::vector<const hwknobs_plat*> platforms_with_ids() { return platforms(first_with_ids, platform_count); }

std::vector<std::size_t> sorted_row_counts(const std::vector<const hwknobs_plat*>& platforms) {
    std::vector<std::size_t> counts;
    counts.reserve(platforms.size());
    for (const hwknobs_plat* const plat : platforms) counts.push_back(hwknobs_configs(*plat).size());
    std::ranges::sort(counts);
    return counts;
}

std::string text_of(const char* text) { return text != nullptr ? text : "(null)"; }

// All fields of a row in one text.
std::string row_text(const hwknobs_config& row) {
    std::string text = text_of(row.desc) + " | " + std::to_string(row.arg_type);
    for (const char* const part : {row.pl_setting.key, row.pl_setting.value, row.dt_fragment})
        text += " | " + text_of(part);
    return text + " | " + std::to_string(row.id) + " | " + std::to_string(static_cast<unsigned>(row.group)) + " | " +
           text_of(row.name);
}

// Each run of digits as one "#": what may differ in the same knob from one platform to the next.
std::string without_numbers(std::string_view text) {
    std::string result;
    for (const char c : text) {
        const bool digit = c >= '0' && c <= '9';
        if (!digit) result += c;
        else if (!result.ends_with('#')) result += '#';
    }
    return result;
}

TEST(Catalogue, PlatformsStandInTheirOrder) {
    std::vector<std::string> names;
    std::set<std::uint64_t> codes;
    for (const hwknobs_plat* const plat : hwknobs_platforms()) {
        names.emplace_back(plat->name);
        codes.insert(plat->hw_code & 0xFFFF);
    }
    EXPECT_THAT(names, ElementsAre("px0000", "px1104", "px1206", "px1310", "px2104", "px2208", "px2312", "px3104",
                                   "px3208", "px3312", "px4108", "px4210", "px4312", "px5108", "px5210", "px5312",
                                   "px6108", "px6210", "px6314", "px7108", "px7210", "px7314", "px8210", "px8314"));
    EXPECT_EQ(codes.size(), platform_count);
    EXPECT_EQ(hwknobs_platforms()[0]->hw_code, 0U);
}

TEST(Catalogue, TablesHaveTheirRowsAndVersions) {
    EXPECT_THAT(sorted_row_counts(platforms_without_ids()),
                ElementsAre(7, 113, 128, 139, 151, 158, 167, 174, 181, 188, 196, 205, 213, 222, 238, 271));
    EXPECT_THAT(sorted_row_counts(platforms_with_ids()), ElementsAre(228, 241, 256, 268, 277, 289, 301, 312));
    for (const hwknobs_plat* const plat : platforms_without_ids()) {
        EXPECT_EQ(plat->version, 0U) << plat->name;
        EXPECT_EQ(plat->count, 0U) << plat->name;
    }
    std::set<const hwknobs_config*> tables;
    std::size_t rows = 0;
    for (const hwknobs_plat* const plat : hwknobs_platforms()) {
        tables.insert(plat->configs);
        rows += hwknobs_configs(*plat).size();
    }
    EXPECT_EQ(tables.size(), platform_count) << "a table is shared";
    EXPECT_EQ(rows, 4923U);
    for (const hwknobs_plat* const plat : platforms_with_ids()) EXPECT_EQ(plat->version, 2U) << plat->name;
}

TEST(Catalogue, TestPlatformIsAsItAlwaysWas) {
    std::vector<std::string> rows;
    for (const hwknobs_config& row : hwknobs_configs(*hwknobs_platforms()[0])) rows.push_back(row_text(row));
    EXPECT_THAT(rows,
                ElementsAre(R"(Dummy 1 OFF | 0 | AA | BB | &SUSPEND { status="test-overide-1"; }; | 0 | 0 | (null))",
                            "Dummy 2 OFF | 0 | EE | FF | (null) | 0 | 0 | (null)",
                            R"(Dummy 3 OFF | 0 | (null) | (null) | &SUSPEND { status="test-overide-2"; }; | 0 | 0 | )"
                            "(null)",
                            R"(Dummy 4 OFF | 1 | GG | %dmv | &SUSPEND { status="test-overide-%d"; }; | 0 | 0 | (null))",
                            "Test level low | 0 | test_level | low | (null) | 0 | 0 | (null)",
                            "Test level mid | 0 | test_level | mid | (null) | 0 | 0 | (null)",
                            "Test level high | 0 | test_level | high | (null) | 0 | 0 | (null)"));
    for (const hwknobs_plat* const plat : hwknobs_platforms().subspan(1))
        for (const hwknobs_config& row : hwknobs_configs(*plat))
            EXPECT_FALSE(cannot_be_selected(row)) << plat->name << ": " << row.desc;
}

TEST(Catalogue, TellingRowsStandInEveryTableWithIds) {
    const hwknobs_config telling[] = {
        {.desc = "Disable Linux kernel randomize-base",
         .dt_fragment = "&chosen { kaslr-status=\"disabled\"; };",
         .group = hwknobs_group{2},
         .name = "kaslr_disable"},
        {.desc = "Enable Linux kernel randomize-base",
         .dt_fragment = "&chosen { kaslr-status=\"okay\"; };",
         .group = hwknobs_group{2},
         .name = "kaslr_enable"},
        {.desc = "Disable Kmemleak",
         .dt_fragment = "&chosen { kmemleak-status=\"disabled\"; };",
         .group = hwknobs_group{2},
         .name = "kmemleak_disable"},
        {.desc = "Enable Kmemleak",
         .dt_fragment = "&chosen { kmemleak-status=\"okay\"; };",
         .group = hwknobs_group{2},
         .name = "kmemleak_enable"},
        {.desc = "switch lcm settings",
         .arg_type = 1,
         .dt_fragment = "&dsi0 { panel_hwknobs = <%d>; };",
         .group = hwknobs_group{4},
         .name = "lcm_settings"},
        {.desc = "Set Boot Perf Stat Events",
         .arg_type = 1,
         .pl_setting = {"perf_event", "%s"},
         .group = hwknobs_group{7},
         .name = "perf_stat_events"},
        {.desc = "Enable GPU ACP",
         .dt_fragment = "&mali { system-coherency = <0>; };",
         .group = hwknobs_group{5},
         .name = "enable_gpu_acp"},
    };
    for (const hwknobs_plat* const plat : platforms_with_ids()) {
        std::vector<std::string> rows;
        for (hwknobs_config row : hwknobs_configs(*plat)) {
            row.id = 0;
            rows.push_back(row_text(row));
        }
        for (const hwknobs_config& row : telling) EXPECT_THAT(rows, Contains(row_text(row))) << plat->name;
    }
}

TEST(Catalogue, IdsHaveGapsAndAreNotSortedEverywhere) {
    std::uint32_t highest = 0;
    bool all_sorted = true;
    for (const hwknobs_plat* const plat : platforms_with_ids()) {
        const auto rows = hwknobs_configs(*plat);
        const auto [min, max] = std::ranges::minmax(rows, {}, &hwknobs_config::id);
        EXPECT_EQ(min.id, 1U) << plat->name;
        EXPECT_GT(max.id, rows.size()) << plat->name << " has no gap";
        highest = std::max(highest, max.id);
        all_sorted = all_sorted && std::ranges::is_sorted(rows, {}, &hwknobs_config::id);
        for (const hwknobs_config& row : rows) EXPECT_EQ(get_config_by_id(plat, row.id), &row) << plat->name;
        EXPECT_THAT(get_config_by_id(plat, 0), IsNull());
        EXPECT_THAT(get_config_by_id(plat, max.id + 1), IsNull());
    }
    EXPECT_EQ(highest, 344U);
    EXPECT_FALSE(all_sorted);
}

TEST(Catalogue, RowsFoundByPositionHaveNoId) {
    std::size_t rows_with_id = 0;
    for (const hwknobs_plat* const plat : platforms_without_ids())
        for (const hwknobs_config& row : hwknobs_configs(*plat)) {
            if (row.id == 0) continue;
            ++rows_with_id;
            EXPECT_THAT(get_config_by_id(plat, row.id), IsNull()) << plat->name << ": " << row.desc;
        }
    EXPECT_GT(rows_with_id, 0U) << "no row carries an id that nothing reads";
}

TEST(Catalogue, OnlyTheLastThreeTablesHaveLongNames) {
    const auto with_ids = platforms_with_ids();
    for (std::size_t i = 0; i < with_ids.size(); ++i) {
        std::vector<std::string> names;
        for (const hwknobs_config& row : hwknobs_configs(*with_ids[i]))
            if (std::string_view(row.name).size() > 31) names.emplace_back(row.name);
        const bool last_three = i + 3 >= with_ids.size();
        EXPECT_EQ(!names.empty(), last_three) << with_ids[i]->name << ": " << testing::PrintToString(names);
        for (const std::string& name : names) EXPECT_LE(name.size(), 34U) << with_ids[i]->name << ": " << name;
    }
}

// A knob is found again on the next platform: what is described alike is called alike. Numbers may differ.
TEST(Catalogue, SameKnobHasSameName) {
    std::map<std::string, std::pair<std::string, std::string>> known;
    for (const hwknobs_plat* const plat : platforms_with_ids())
        for (const hwknobs_config& row : hwknobs_configs(*plat)) {
            const std::string name = without_numbers(row.name);
            const auto& [first, first_plat] =
                known.try_emplace(without_numbers(row.desc), name, plat->name).first->second;
            EXPECT_EQ(name, first) << plat->name << " and " << first_plat << ": " << row.desc;
        }
}

TEST(Catalogue, EveryTableWithIdsUsesEveryConversion) {
    for (const hwknobs_plat* const plat : platforms_with_ids()) {
        std::set<std::string> used;
        for (const hwknobs_config& row : hwknobs_configs(*plat)) {
            const std::string text = row.dt_fragment != nullptr ? row.dt_fragment : row.pl_setting.value;
            const auto at = text.find('%');
            if (!row.takes_argument() || at == std::string::npos) continue;
            used.insert(text.substr(at, text.substr(at).starts_with("%s[") ? 3 : 2));
        }
        EXPECT_THAT(used, ElementsAre("%d", "%s", "%s[", "%u", "%x")) << plat->name;
    }
}

// What a row sets in the bootloader comes back from the partition, whatever its argument.
TEST(Catalogue, BootloaderSettingsSurviveTheBlock) {
    std::size_t checked = 0;
    for (const hwknobs_plat* const plat : hwknobs_platforms())
        for (const hwknobs_config& row : hwknobs_configs(*plat))
            for (const config_item& item : sample_items(row, number_of(*plat, row))) {
                const auto pair = item.plenv_get();
                if (!pair) continue;
                ++checked;
                EXPECT_EQ(hwknobs_plenv_parse(hwknobs_plenv_build({*pair})), plenv_map({*pair}))
                    << plat->name << ": " << item.desc();
            }
    EXPECT_GT(checked, 500U);
}

}  // namespace
