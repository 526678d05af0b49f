// px0000: the test platform. Its knobs are for trying the tool on any device; the fourth cannot be selected.
#include "hwknobs_plat/catalogue/table.h"

using namespace catalogue;

namespace {

constexpr knob rows[] = {
    {TOOL, "dummy_1_off", "Dummy 1 OFF", both("AA", "BB", R"(&SUSPEND { status="test-overide-1"; };)"), choice{"SUSPEND"}},
    {TOOL, "dummy_2_off", "Dummy 2 OFF", env("EE", "FF")},
    {TOOL, "dummy_3_off", "Dummy 3 OFF", dt(R"(&SUSPEND { status="test-overide-2"; };)"), choice{"SUSPEND"}},
    {TOOL, "dummy_4_off", "Dummy 4 OFF", {true, {"GG", "%dmv"}, R"(&SUSPEND { status="test-overide-%d"; };)"},
     choice{"SUSPEND"}},
    {TOOL, "test_level_low", "Test level low", env("test_level", "low"), choice{"test level"}},
    {TOOL, "test_level_mid", "Test level mid", env("test_level", "mid"), choice{"test level"}},
    {TOOL, "test_level_high", "Test level high", env("test_level", "high"), choice{"test level"}},
};

}  // namespace

constinit const hwknobs_plat px0000 = version_0<rows>("px0000");
