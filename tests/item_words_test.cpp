// Item words: which item each gives, or with which message the first bad one ends the run.
#include "hwknobs_main/item_words.h"
#include "fatal.h"
#include "rows.h"

#include <cerrno>

namespace {

using words = std::vector<std::string>;

std::vector<config_item> parse(words input, const char* plat = plat_with_ids, bool by_name = false,
                               bool take_args = true) {
    std::vector<char*> argv;
    errno = EIO;  // left by an earlier call
    for (std::string& word : input) argv.push_back(word.data());
    return parse_item_set(static_cast<int>(argv.size()), argv.data(), plat, take_args, by_name);
}

const hwknobs_config& signed_row = row_with(config_arg_kind::int32);
const hwknobs_config& unsigned_row = row_with(config_arg_kind::uint32);
const hwknobs_config& free_row = row_with(config_arg_kind::string);
const hwknobs_config& listed_row = row_with(config_arg_kind::string, true);

std::string id_of(const hwknobs_config& row) { return std::to_string(row.id); }

TEST(ItemWords, Arguments) {
    const std::tuple<const hwknobs_config&, const char*, decltype(config_item::arg)> cases[] = {
        {signed_row, "a-3", -3},     {signed_row, "a0x10", 16},    {signed_row, "a010", 8},
        {signed_row, "a 12abc", 12}, {signed_row, "a0", 0},        {unsigned_row, "a0", 0U},
        {unsigned_row, "a7", 7U},    {unsigned_row, "u0x10", 16U}, {unsigned_row, "u4294967295", 4294967295U},
        {free_row, "s", ""},         {free_row, "sa-1", "a-1"},
    };
    for (const auto& [row, word, arg] : cases) {
        for (const bool by_name : {false, true}) {
            const auto items = parse({by_name ? row.name : id_of(row), word}, plat_with_ids, by_name);
            ASSERT_EQ(items.size(), 1U);
            EXPECT_EQ(items[0].cfg, &row);
            EXPECT_EQ(items[0].number, row.id);
            EXPECT_EQ(items[0].arg, arg) << word;
        }
    }
}

TEST(ItemWords, Refused) {
    const std::string listed = listed_row.name, free_name = free_row.name, signed_name = signed_row.name;
    const std::pair<words, std::string> cases[] = {
        {{id_of(signed_row), "u7"}, "argument type mismatch, expect int32"},
        {{id_of(signed_row), "a"}, "not a number "},
        {{id_of(signed_row), "a2147483648"}, "config number out of range 2147483648"},
        {{id_of(unsigned_row), "a-1"}, "argument type mismatch, expect uint32"},
        {{id_of(unsigned_row), "uabc"}, "not a number abc"},
        {{id_of(unsigned_row), "u4294967296"}, "config number out of range (uint32) 4294967296"},
        {{id_of(unsigned_row), "u99999999999999999999"}, "config number out of range (uint32) 99999999999999999999"},
        {{id_of(unsigned_row), "u-1"}, "config number out of range (uint32) -1"},
        {{id_of(unsigned_row), "s1"}, "Invalid argument '1' or argument type mismatch(expect uint32)"},
        {{id_of(free_row), "a1"}, "argument type mismatch, expect string"},
        {{id_of(free_row), "sa.b"}, "Invalid argument 'a.b' or argument type mismatch(expect string)"},
        {{id_of(free_row), "A1"}, "'" + free_name + "' argument should start with 'a' | 'u' | 's' : A1"},
        {{id_of(free_row)}, "'" + free_name + "' need an argument."},
        {{id_of(listed_row), "s"}, "config " + listed + " not allowed ''"},
        {{id_of(signed_row), "a1", id_of(signed_row), "a2"},
         "Repeat input config :" + signed_name + "(" + id_of(signed_row) + ")"},
        {{"0"}, "invalid config number 0"},
        {{"0x10"}, "invalid config number 0x10"},
        {{"1025"}, "invalid config number 1025"},
        {{"1024"}, "Cannot find this config ID: 1024"},
        {{"x"}, "invalid config number x"},
        {{"99999999999999999999"}, "conversion error 99999999999999999999"},
    };
    for (const auto& [input, message] : cases) EXPECT_ERROR(parse(input), message);
    EXPECT_ERROR(parse({id_of(signed_row), "a5"}, plat_with_ids, false, false), "invalid config number a5");
    EXPECT_ERROR(parse({signed_row.name, "a5"}, plat_with_ids, true, false), "Cannot find this config name: a5");
    EXPECT_ERROR(parse({"kaslr_disabl"}, plat_with_ids, true), "Cannot find this config name: kaslr_disabl");
}

TEST(ItemWords, Positions) {
    const auto items = parse({"3abc", "1"}, "px0000");
    EXPECT_EQ(items[0].number, 3U);
    EXPECT_EQ(items[1].number, 1U);
    EXPECT_ERROR(parse({"1"}, "px0000", true), "This platform does not support set in string");
    EXPECT_ERROR(parse({"2", "2"}, "px0000"), "Repeat input config :(2)");
    // The end row is refused as an item, what lies behind it as a number.
    EXPECT_FATAL(parse({"8"}, "px0000"),
                 "Error in file hwknobs/hwknobs:139\n"
                 "\tfunction: config_item::config_item(const struct hwknobs_config *, unsigned int)\n"
                 "\t> (cfg->pl_setting.key != NULL) || (cfg->dt_fragment != NULL)\n");
    EXPECT_ERROR(parse({"9"}, "px0000"), "invalid config number 9");
}

}  // namespace
