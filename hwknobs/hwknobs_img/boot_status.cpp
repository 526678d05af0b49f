#include "hwknobs_img/boot_status.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_base/unique_fd.h"
#include "hwknobs_img/partition_format.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

bool hwknobs_boot_status(const char* partition) {
    constexpr const char* function_name = "hwknobs_boot_status";
    constexpr off_t offset = offsetof(partition_layout, status);
    if (partition == nullptr) error("No boot para available");
    const unique_fd file(open(partition, O_RDONLY | O_CLOEXEC));
    if (!file) {
        debug("%s: Cannot open file %s", function_name, partition);
        return false;
    }
    if (lseek(file.get(), offset, SEEK_SET) != offset)
        error("Cannot lseek file %s (%s)", partition, std::strerror(errno));
    le32 word;
    const std::size_t count = read_fully(file.get(), &word, sizeof(word));
    if (count < sizeof(word)) {
        debug("%s: boot para read hwknobs header failed, size mismatch %zu\n", function_name, count);
        return false;
    }
    std::printf("hwknobs boot status = 0x%x\n", static_cast<std::uint32_t>(word));
    return true;
}
