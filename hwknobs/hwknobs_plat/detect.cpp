#include "hwknobs_plat/detect.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_base/unique_fd.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

constexpr const char* hw_code_path = "/proc/chip/hw_code";
constexpr const char* chipid_path = "/proc/device-tree/chosen/atag,chipid";

// atag,chipid: five 32-bit words in the machine's own byte order, the hardware code in the second.
constexpr std::size_t chipid_size = 20;
constexpr std::size_t chipid_code_offset = 4;
constexpr int chipid_read_attempts = 5;

void report_failure(const char* what, const char* path) {
    std::printf("Fail to %s %s(%d), %s\n", what, path, errno, std::strerror(errno));
}

std::optional<std::uint16_t> read_hw_code_file() {
    std::FILE* const file = std::fopen(hw_code_path, "r");
    if (file == nullptr) {
        report_failure("open", hw_code_path);
        return std::nullopt;
    }
    unsigned short code = 0;
    // The kernel writes one number; of a larger one the low 16 bits count.
    const bool converted = std::fscanf(file, "%hx", &code) == 1;  // NOLINT(cert-err34-c)
    constexpr assertion_site site{"hwknobs/hwknobs_plat", "int file_read_short(const char *, short *)"};
    check_invariant(std::fclose(file) != EOF, "fclose(fp) != EOF", site, 78);
    if (!converted) return std::nullopt;
    return code;
}

std::optional<std::uint16_t> read_chipid() {
    const unique_fd file(open(chipid_path, O_RDONLY | O_CLOEXEC));
    if (!file) {
        report_failure("open", chipid_path);
        return std::nullopt;
    }
    std::array<char, chipid_size> chipid{};
    ssize_t count = 0;
    for (int attempt = 0; attempt < chipid_read_attempts; ++attempt) {
        count = read(file.get(), chipid.data(), chipid.size());
        if (count == -1) {
            report_failure("read", chipid_path);
            return std::nullopt;
        }
        if (count == static_cast<ssize_t>(chipid.size())) break;
        if (lseek(file.get(), 0, SEEK_SET) == -1) {
            report_failure("lseek", chipid_path);
            break;
        }
    }
    if (count != static_cast<ssize_t>(chipid.size())) return std::nullopt;
    std::uint32_t word = 0;
    std::memcpy(&word, chipid.data() + chipid_code_offset, sizeof(word));
    return static_cast<std::uint16_t>(word);
}

}  // namespace

std::optional<std::uint16_t> detect_hw_code() {
    return access(hw_code_path, R_OK) == 0 ? read_hw_code_file() : read_chipid();
}
