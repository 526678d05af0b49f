// The auth-status command: what the two boot stages said of the stored image at the last boot.
#include "hwknobs_base/diagnostics.h"
#include "hwknobs_base/unique_fd.h"
#include "hwknobs_main/commands.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>
#include <string_view>

namespace {

constexpr const char* chosen_node = "/proc/device-tree/chosen";

// Codes are read up to this length. One code of the second stage is longer and never matches, as scripts expect.
constexpr std::size_t code_size_max = 31;

struct status_message {
    std::string_view code;
    const char* message;
};

constexpr status_message first_stage_messages[] = {
    {"PL_NO_HWKNOBS_IMG", "NO hwknobs setting"},
    {"PL_SEC_DISABLE", "SBOOT disable, skip authentication flow"},
    {"PL_AUTH_INIT_FAIL", "SBOOT enable, Image authentication initial FAIL"},
    {"PL_AUTH_FAIL", "SBOOT enable, Image authentication FAIL"},
    {"PL_GET_CERT_SOCID_FAIL", "SBOOT enable, Image authentication get certiticate SOCID FAIL"},
    {"PL_GET_DEV_SOCID_FAIL", "SBOOT enable, Image authentication get device SOCID FAIL"},
    {"PL_CMP_DEV_CERT_ID_FAIL", "SBOOT enable, Image authentication compare SOCID FAIL"},
    {"PL_SEC_ENABLE_AUTH_PASS", "SBOOT enable, Image authentication PASS"},
    {"HWKNOBS_FORCE_ENABLE", "Force enable hwknobs feature"},
};

constexpr status_message second_stage_messages[] = {
    {"LK_MEM_ALIGN_ERROR", "Memory align error"},
    {"LK_PARTITION_NOT_EXIST", "boot_para partition is not exist"},
    {"LK_NO_HWKNOBS_IMG", "NO hwknobs setting"},
    {"LK_SEC_DISABLE", "SBOOT disable, skip authentication flow"},
    {"LK_AUTH_CERT_CHAIN_FAIL", "SBOOT enable, Image authentication certiticate chain verify FAIL"},
    {"LK_AUTH_HEADER_AUTH_FAIL", "SBOOT enable, Image authentication header verify FAIL"},
    {"LK_AUTH_BUFFER_SIZE_FAIL", "SBOOT enable, Image authentication buffer size FAIL"},
    {"LK_SBOOT_ON_READ_PARTITION_FAIL", "SBOOT enable, Read partition FAIL"},
    {"LK_SBOOT_OFF_READ_PARTITION_FAIL", "SBOOT disable, Read partition FAIL"},
    {"LK_AUTH_IMG_AUTH_FAIL", "SBOOT enable, Image authentication FAIL"},
    {"LK_AUTH_GET_CERT_SOCID_FAIL", "SBOOT enable, Image authentication get certiticate SOCID FAIL"},
    {"LK_SEC_ENABLE_AUTH_PASS", "SBOOT enable, Image authentication PASS"},
    {"HWKNOBS_FORCE_ENABLE", "Force enable hwknobs feature"},
};

struct boot_stage {
    const char* name;
    const char* property;
    std::span<const status_message> messages;
};

constexpr boot_stage first_stage{"PL", "atag,pl-sec", first_stage_messages};
constexpr boot_stage second_stage{"LK", "atag,lk-sec", second_stage_messages};

void print_stage(int dirfd, const boot_stage& stage) {
    constexpr const char* function_name = "hwknobs_sec_boot_status";
    const unique_fd entry(openat(dirfd, stage.property, O_RDONLY | O_CLOEXEC));
    if (!entry) error("%s: Can't open %s entry\n", function_name, stage.property);
    std::array<char, code_size_max + 1> code{};
    if (read(entry.get(), code.data(), code_size_max) < 0)
        error("%s: Can't read %s entry\n", function_name, stage.property);
    const auto found = std::ranges::find(stage.messages, std::string_view(code.data()), &status_message::code);
    std::printf("[%s]: %s\n", stage.name, found != stage.messages.end() ? found->message : "Unknown Status");
}

// Whether the device tree could be looked at.
bool hwknobs_sec_boot_status() {
    const unique_fd chosen(open(chosen_node, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!chosen) {
        std::puts("hwknobs setting does not take effect");
        return false;
    }
    print_stage(chosen.get(), first_stage);
    print_stage(chosen.get(), second_stage);
    return true;
}

}  // namespace

int run_auth_status_command(const global_options& /*global*/, int /*argc*/, char** /*argv*/) {
    return hwknobs_sec_boot_status() ? 1 : 0;
}
