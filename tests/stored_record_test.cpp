// What the reader finds in the source text of a stored setting.
#include "hwknobs_record/stored_record.h"
#include "fatal.h"
#include "rows.h"

#include <fmt/format.h>

#include <cerrno>

namespace {

std::vector<config_item> read_back(const std::string& dts) {
    errno = ENOMEM;  // left by an earlier call
    // An old item, to be dropped.
    std::vector<config_item> items{config_item(&row_with(config_arg_kind::int32), 1)};
    save_hwknobs_effect_status(plat_with_ids, dts.c_str(), items);
    return items;
}

std::string line(const hwknobs_config& row, const char* argument) {
    return fmt::format("\t\titem0 = \"Activate  {}({}){} {}\";\n", row.name, row.id, argument, row.desc);
}

TEST(StoredRecord, LinesAndArguments) {
    const std::tuple<config_arg_kind, const char*, decltype(config_item::arg)> cases[] = {
        {config_arg_kind::int32, "[arg=3]", 3},
        {config_arg_kind::int32, "[arg=010]", 10},
        {config_arg_kind::int32, "[arg=-3]", 0},  // digits only
        {config_arg_kind::int32, "[arg=1f]", 0},  // decimal ones
        {config_arg_kind::uint32, "[arg=4294967295]", 4294967295U},
        {config_arg_kind::uint32, "[arg=010]", 10U},
        {config_arg_kind::string, "[str=a-b_C]", "a-b_C"},
        {config_arg_kind::string, "[str=cpu0]", ""},  // no digits
        {config_arg_kind::string, "[str=a,b]", ""},
    };
    const hwknobs_config& other = row_with(config_arg_kind::uint32);
    for (const auto& [kind, stored, arg] : cases) {
        const hwknobs_config& row = row_with(kind);
        const auto items = read_back("x = \"y\";\n" + line(row, stored) + "other;\n" + line(other, "[arg=1]"));
        ASSERT_EQ(items.size(), 2U);
        EXPECT_EQ(items[0].cfg, &row);
        EXPECT_EQ(items[0].number, row.id);
        EXPECT_EQ(items[0].arg, arg) << stored;
        EXPECT_EQ(items[1].cfg, &other);
    }
    EXPECT_TRUE(read_back("").empty());
    const std::string value = "Activate  any name(010) ";  // the number decides, which is decimal
    const auto of_size = [&value](std::size_t size) {
        return "items = \"" + value + std::string(size - value.size(), 'x') + "\";";
    };
    EXPECT_EQ(read_back(of_size(4095)).at(0).number, 10U);
    // A longer one is looked at forever.
    EXPECT_EXIT((ualarm(100000, 0), read_back(of_size(4096))), testing::KilledBySignal(SIGALRM), "");
    const hwknobs_config& listed = row_with(config_arg_kind::string, true);
    EXPECT_ERROR(read_back(line(listed, "[str=0x]")), fmt::format("config {} not allowed ''", listed.name));
}

}  // namespace
