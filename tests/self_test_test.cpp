// The self test's rules, on tables that break them.
#include "hwknobs_main/self_test.h"

#include "fatal.h"
#include "hwknobs_base/diagnostics.h"

namespace {

hwknobs_config row(std::uint32_t id) {
    return {.desc = "x",
            .pl_setting = {"k", "v"},
            .id = id,
            .group = hwknobs_group::CPU,
            .name = "a234567890123456789012345678901"};
}

// Checks the rows of a version-2 table and tells what was said of them.
std::string complaints(const std::vector<hwknobs_config>& rows, bool expected) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(check_configs({1, "px0001", rows.data(), 2, static_cast<std::uint32_t>(rows.size())}), expected);
    return testing::internal::GetCapturedStdout();
}

TEST(SelfTest, Rows) {
    const std::pair<void (*)(hwknobs_config&), const char*> cases[] = {
        {[](auto& r) { r.id = 1; }, "DEBUG: [id=1 name=b] ID is used.\n"},
        {[](auto& r) { r.id = 1024; }, "DEBUG: [id=1024 name=b] ID is out of range.\n"},
        {[](auto& r) { r.name = "a2345678901234567890123456789012"; },
         "DEBUG: [id=2] Command length is greater than NAME_MAX_LEN: 31.\n"},
        {[](auto& r) { r.desc = nullptr; }, "DEBUG: [id=2 name=b] config description is empty.\n"},
        {[](auto& r) { r.pl_setting.value = nullptr; },
         "DEBUG: [id=2 name=b] pl_setting check fails: has key:1, has value:0\n"},
        {[](auto& r) { r.pl_setting.key = nullptr; },
         "DEBUG: [id=2 name=b] pl_setting check fails: has key:0, has value:1\n"},
        {[](auto& r) { r = {.id = 1}; },
         "DEBUG: [id=1] config item name is empty.\nDEBUG: [id=1 name=] ID is used.\n"
         "DEBUG: [id=1 name=] config description is empty.\n"
         "DEBUG: [id=1 name=] That pl_setting and dt_fragment are both empty is not allowed.\n"},
    };
    hwknobs_verbose = true;
    for (const auto& [spoil, said] : cases) {
        hwknobs_config broken = row(2);
        broken.name = "b";
        spoil(broken);
        EXPECT_EQ(complaints({row(1), broken, row(3)}, false), said);
    }
    EXPECT_EQ(complaints({row(1), row(1023), {.name = "end"}}, true), "");  // the last row may be a terminating one
    EXPECT_EQ(complaints({}, true), "");
    hwknobs_verbose = false;
}

TEST(SelfTest, Platforms) {
    const hwknobs_config rows[] = {row(1)};
    EXPECT_TRUE(check_platform({0x10001, "px0001", rows, 0, 0}));
    EXPECT_FALSE(check_platform({0x10000, "px0001", rows, 0, 0}));
    EXPECT_FALSE(check_platform({1, nullptr, rows, 0, 0}));
    EXPECT_FALSE(check_platform({1, "px0001", nullptr, 0, 0}));
}

}  // namespace
