// The plenv block: layout, capacity and what the parser makes of damaged ones.
#include "fatal.h"
#include "hwknobs_img/plenv_block.h"

#include <algorithm>

namespace {

using namespace std::string_literals;

// A block with these bytes in its entry area and a checksum that fits.
plenv_block block_of(const std::string& entries) {
    plenv_block block = hwknobs_plenv_build({});
    std::ranges::copy(entries, block.entries.begin());
    std::uint32_t sum = 0;
    for (const char c : block.entries) sum += static_cast<unsigned char>(c);
    block.checksum = sum;
    return block;
}

TEST(Plenv, LayoutIsSortedAndSummed) {
    const plenv_block block = hwknobs_plenv_build({{"b", "x,y-z_w"}, {"a", "1"}, {"k", ""}});
    EXPECT_TRUE(std::string_view(block.entries.data(), block.entries.size()).starts_with("a=1\0b=x,y-z_w\0k=\0\0"s));
    EXPECT_EQ(block.checksum, 97U + 61 + 49 + 98 + 61 + 120 + 44 + 121 + 45 + 122 + 95 + 119 + 107 + 61);
    EXPECT_EQ(hwknobs_plenv_build({}).checksum, 0U);
    EXPECT_EQ(hwknobs_plenv_parse(block), (plenv_map{{"a", "1"}, {"b", "x,y-z_w"}, {"k", ""}}));
}

TEST(Plenv, CapacityLeavesOneZeroByte) {
    const plenv_map full{{"a", std::string(1000, '9')}};
    const plenv_block block = hwknobs_plenv_build(full);
    EXPECT_EQ(block.tail, plenv_signature_text);
    EXPECT_EQ(hwknobs_plenv_parse(block), full);
    EXPECT_ERROR(hwknobs_plenv_build({{"a", std::string(1001, '9')}}),
                 "plenv settings need 1004 bytes, the partition holds 1003");
}

TEST(Plenv, Parsing) {
    EXPECT_EQ(hwknobs_plenv_parse(block_of("k=1\0k=2\0"s)), (plenv_map{{"k", "1"}}));
    EXPECT_EQ(hwknobs_plenv_parse(block_of("a=0x1f\0\0b=2\0"s)), (plenv_map{{"a", "0x1f"}}));
    const std::string long_value(1002, '9');  // which takes in the second signature
    EXPECT_EQ(hwknobs_plenv_parse(block_of("a=" + long_value)), (plenv_map{{"a", long_value + "ENV_v1"}}));
    const std::pair<std::string, const char*> damaged[] = {
        {"k:v", "plenv corrupted, equal"},
        {"k", "plenv corrupted, equal"},
        {"k=v=w", "plenv corrupted, null(3d)"},
        {"k=\xff", "plenv corrupted, null(ff)"},
    };
    for (const auto& [entries, message] : damaged) EXPECT_ERROR(hwknobs_plenv_parse(block_of(entries)), message);
}

TEST(Plenv, SignaturesAndChecksum) {
    plenv_block head = block_of("a=1"), tail = block_of("a=1"), data = block_of("a=1");
    head.head[0] = tail.tail[7] = 'x';
    data.entries[1003] = '\x80';
    EXPECT_TRUE(hwknobs_plenv_parse(head).empty());
    EXPECT_TRUE(hwknobs_plenv_parse(tail).empty());
    EXPECT_ERROR(hwknobs_plenv_parse(data), "plenv checksum failed expect: cf, read: 14f");
}

TEST(Plenv, AsciiFields) {
    const std::pair<std::string, const char*> cases[] = {
        {"abcdefghijk\0"s, "abcdefghijk"}, {"abcdefghijkl", ""},   {"ab\0cdefghijk"s, "ab"},
        {"a\x80\0bcdefghij"s, ""},         {"\0bcdefghijkl"s, ""},
    };
    for (const auto& [field, text] : cases) EXPECT_EQ(check_ascii_string(field), text);
}

}  // namespace
