// px0000: the test platform. Its rows are for trying the tool on any device; the fourth cannot be selected.
#include "hwknobs_plat/catalogue/table.h"

using namespace catalogue;

namespace {

constexpr hwknobs_config rows[] = {
    both("Dummy 1 OFF", "AA", "BB", R"(&SUSPEND { status="test-overide-1"; };)"),
    env("Dummy 2 OFF", "EE", "FF"),
    dt("Dummy 3 OFF", R"(&SUSPEND { status="test-overide-2"; };)"),
    {.desc = "Dummy 4 OFF",
     .arg_type = 1,
     .pl_setting = {"GG", "%dmv"},
     .dt_fragment = R"(&SUSPEND { status="test-overide-%d"; };)"},
    env("Test level low", "test_level", "low"),
    env("Test level mid", "test_level", "mid"),
    env("Test level high", "test_level", "high"),
    end_of_table,
};

}  // namespace

constinit const hwknobs_plat px0000 = version_0<rows>("px0000");
