// What is promised of the tables as a whole. The rules for single rows are checked by the compiler, in rules.h.
#include "hwknobs_plat/catalogue/platforms.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

namespace {

TEST(Catalogue, HoldsAsManyRowsAsPromised) {
    std::size_t rows = 0;
    for (const hwknobs_plat* const plat : hwknobs_platforms()) rows += hwknobs_configs(*plat).size();
    EXPECT_EQ(rows, promised_rows) << "change the number in platforms.h when rows come or go";
}

std::string text_of(const char* text) { return text != nullptr ? text : "-"; }

// Description, argument, key, value, fragment, group and name.
std::string row_text(const hwknobs_config& row) {
    return text_of(row.desc) + "|" + std::to_string(row.arg_type) + "|" + text_of(row.pl_setting.key) + "|" +
           text_of(row.pl_setting.value) + "|" + text_of(row.dt_fragment) + "|" + get_hwknobs_group_name(row.group) +
           "|" + text_of(row.name);
}

// People's scripts and devices rely on these rows. Those of px0000 are all it has; each of the others stands somewhere,
// and no other row has its name.
TEST(Catalogue, PromisedRowsAreAsTheyAlwaysWere) {
    std::string test_platform;
    std::map<std::string, std::string> by_name;
    for (const hwknobs_config& row : hwknobs_configs(*hwknobs_get_plat("px0000")))
        test_platform += row_text(row) + "\n";
    for (const hwknobs_plat* const plat : hwknobs_platforms())
        for (const hwknobs_config& row : hwknobs_configs(*plat))
            if (row.name != nullptr) by_name[row.name] += row_text(row) + "\n";
    std::string expected_test_platform;
    std::size_t checked = 0;
    std::ifstream file(HWKNOBS_TEST_DATA "/promised_rows.txt");
    std::string line;
    std::getline(file, line);  // names the columns
    while (std::getline(file, line)) {
        const std::string name = line.substr(line.rfind('|') + 1);
        if (name == "-") {
            expected_test_platform += line + "\n";
            continue;
        }
        std::string found = by_name[name];
        for (std::size_t at; (at = found.find(line + "\n")) != std::string::npos; ++checked)
            found.erase(at, line.size() + 1);
        EXPECT_EQ(found, "") << "differs from " << line;
    }
    EXPECT_EQ(test_platform, expected_test_platform);
    EXPECT_GE(checked, 7U);
}

// Who knows a setting by its number finds it on another platform. Each has its own panels.
TEST(Catalogue, ANameHasOneId) {
    std::map<std::string, std::uint32_t> ids;
    for (const hwknobs_plat* const plat : hwknobs_platforms())
        for (const hwknobs_config& row : hwknobs_configs(*plat)) {
            const std::string name = text_of(row.name);
            if (name.starts_with("panel_") && row.pl_setting.key != nullptr) continue;
            EXPECT_EQ(ids.try_emplace(name, row.id).first->second, row.id) << plat->name << ": " << name;
        }
}

}  // namespace
