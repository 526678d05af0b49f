#include "hwknobs_main/self_test.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_main/commands.h"

#include <bitset>
#include <cstdio>
#include <cstring>

namespace {

constexpr unsigned int planned_tests = 2;
constexpr std::size_t name_length_max = 31;

using seen_ids = std::bitset<1024>;

// Numbers the tests and counts their results.
struct test_report {
    unsigned int passed = 0;
    unsigned int failed = 0;

    unsigned int run() const { return passed + failed; }

    // The uneven newlines are fixed: names that are passed in end with one.
    void add(bool good, const char* name) {
        ++(good ? passed : failed);
        std::printf(good ? "ok %u %s" : "not ok %u %s\n", run(), name);
    }
};

bool check_id(const hwknobs_config& config, const char* name, seen_ids& seen) {
    if (config.id >= seen.size()) {
        debug("[id=%u name=%s] ID is out of range.", config.id, name);
        return false;
    }
    const bool fresh = !seen.test(config.id);
    if (!fresh) debug("[id=%u name=%s] ID is used.", config.id, name);
    seen.set(config.id);
    return fresh;
}

bool check_setting(const hwknobs_config& config, const char* name) {
    const bool has_key = config.pl_setting.key != nullptr;
    const bool has_value = config.pl_setting.value != nullptr;
    if (has_key != has_value) {
        debug("[id=%u name=%s] pl_setting check fails: has key:%u, has value:%u", config.id, name,
              static_cast<unsigned int>(has_key), static_cast<unsigned int>(has_value));
        return false;
    }
    if (has_key || config.dt_fragment != nullptr) return true;
    debug("[id=%u name=%s] That pl_setting and dt_fragment are both empty is not allowed.", config.id, name);
    return false;
}

// All checks of a row run, so that one run tells all that is wrong.
bool check_config(const hwknobs_config& config, seen_ids& seen) {
    bool good = true;
    const char* const name = config.name != nullptr ? config.name : "";
    if (config.name == nullptr) {
        debug("[id=%u] config item name is empty.", config.id);
        good = false;
    }
    good &= check_id(config, name, seen);
    if (std::strlen(name) > name_length_max) {
        debug("[id=%u] Command length is greater than NAME_MAX_LEN: %d.", config.id, static_cast<int>(name_length_max));
        good = false;
    }
    if (config.desc == nullptr) {
        debug("[id=%u name=%s] config description is empty.", config.id, name);
        good = false;
    }
    good &= check_setting(config, name);
    return good;
}

}  // namespace

bool check_platform(const hwknobs_plat& plat) {
    const char* reason = nullptr;
    if ((plat.hw_code & 0xFFFF) == 0) reason = "plat hw_code is 0.";
    else if (plat.name == nullptr) reason = "plat name is empty.";
    else if (plat.configs == nullptr) reason = "plat configs are not ready.";
    if (reason == nullptr) return true;
    debug("%s", reason);
    return false;
}

bool check_configs(const hwknobs_plat& plat) {
    if (plat.version != version_with_ids) return true;
    std::span rows(plat.configs, plat.count);
    if (!rows.empty() && rows.back().id == 0) rows = rows.first(rows.size() - 1);  // a terminating row
    bool good = true;
    seen_ids seen;
    for (const hwknobs_config& config : rows) good &= check_config(config, seen);
    return good;
}

int hwknobs_self_test() {
    std::puts("----------------- run self test ----------------------------");
    const hwknobs_plat& plat = *hwknobs_get_plat(nullptr);
    std::printf("prepare testcase: %u\n", planned_tests);
    test_report report;
    report.add(check_platform(plat), "Check hwknobs_plat by current platform.\n");
    report.add(check_configs(plat), "Check hwknobs_config (v2) by current platform.\n");
    std::puts("-----------------------------------------------------------");
    if (report.run() != planned_tests)
        std::printf("# Planned tests != run tests (%u != %u)\n", planned_tests, report.run());
    std::printf("# Totals: pass:%u fail:%u skip:%d error:%d\n", report.passed, report.failed, 0, 0);
    return report.failed != 0 ? 2 : 0;
}

int run_selftest_command(const global_options& /*global*/, int /*argc*/, char** /*argv*/) {
    return hwknobs_self_test();
}
