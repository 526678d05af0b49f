#include "hwknobs_img/partition_writer.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_base/malloced.h"
#include "hwknobs_base/unique_fd.h"
#include "hwknobs_dtc/dt_compiler.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>

namespace {

constexpr std::size_t clear_chunk_size = 16384;

// Copies as much as fits with a NUL behind it into a field that is zero.
template <std::size_t Size>
void copy_text(std::array<char, Size>& field, std::string_view text) {
    std::ranges::copy(text.substr(0, Size - 1), field.begin());
}

section_header make_header(std::string_view name, std::size_t data_size) {
    section_header header{};
    header.magic = section_magic;
    header.data_size = static_cast<std::uint32_t>(data_size);
    copy_text(header.name, name);
    header.reserved_a = 0xFFFFFFFF;
    header.reserved_b = 0xFFFFFFFF;
    header.ext_magic = section_ext_magic;
    header.header_size = sizeof(section_header);
    header.header_version = 1;
    header.alignment = section_alignment;
    return header;
}

// Up to the end of the blob, or of the status area where there is one.
std::size_t image_size(std::size_t blob_size, bool boot_failure_recovery) {
    if (boot_failure_recovery) return sizeof(partition_layout);
    const std::size_t aligned_blob = (blob_size + section_alignment - 1) / section_alignment * section_alignment;
    return offsetof(partition_layout, blob) + aligned_blob;
}

// One write() that has to take everything: what the bootloader finds is never put together from several.
bool write_whole(const unique_fd& file, const void* data, std::size_t size) {
    const ssize_t n = write(file.get(), data, size);
    if (n == static_cast<ssize_t>(size)) return true;
    if (n >= 0) errno = ENOSPC;  // a short write sets no errno; it means the end of the device
    return false;
}

[[noreturn]] void write_failed(const char* path, int reason) {
    error("Cannot write file %s (%s)", path, std::strerror(reason));
}

// Behind its valid first header an incomplete image would be booted with: without the header there is no setting.
void write_image(const unique_fd& file, const char* path, const partition_layout& image, std::size_t size) {
    if (write_whole(file, &image, size)) return;
    const int reason = errno;
    const section_header no_header{};
    [[maybe_unused]] const ssize_t cleared = pwrite(file.get(), &no_header, sizeof(no_header), 0);
    write_failed(path, reason);
}

// Zeroed by calloc(), which maps fresh pages for that much: those that nothing is written to are never touched.
malloced<partition_layout> make_image() {
    malloced<partition_layout> image(static_cast<partition_layout*>(std::calloc(1, sizeof(partition_layout))));
    if (image == nullptr) error("No enough memory");
    return image;
}

}  // namespace

void hwknobs_generate_partimage(const char* partition, const char* name, const char* plat, const plenv_map& plenv,
                                const char* dts, bool boot_failure_recovery) {
    const malloced<partition_layout> image = make_image();
    image->plenv = hwknobs_plenv_build(plenv);  // before the clearing: what cannot be stored costs nothing
    hwknobs_partimage_clear(hwknobs_default_partition, partimage_clear_mode::all);

    copy_text(image->info.name, name);
    copy_text(image->info.platform, plat);
    image->info.boot_failure_recovery = boot_failure_recovery ? 1 : 0;
    const std::size_t blob_size = dts != nullptr ? hwknobs_dt_to_blob(dts, image->blob) : 0;
    image->settings_header = make_header("hwknobs", settings_data_size);
    image->dt_header = make_header("hwknobs-dt", blob_size);
    if (boot_failure_recovery) image->status_header = make_header("hwknobs-status", sizeof(image->status));

    if (partition == nullptr) error("No boot para available");
    const unique_fd file(open(partition, O_RDWR | O_CREAT | O_SYNC | O_CLOEXEC, 0600));
    if (!file) error("Cannot open output file %s", partition);
    write_image(file, partition, *image, image_size(blob_size, boot_failure_recovery));
}

void hwknobs_partimage_clear(const char* partition, partimage_clear_mode mode) {
    using enum partimage_clear_mode;
    constexpr const char* function_name = "hwknobs_partimage_clear";
    debug("%s: filename %s action %d", function_name, partition, static_cast<int>(mode));
    if (partition == nullptr) error("No boot para available");
    const unique_fd file(open(partition, O_RDWR | O_SYNC | O_CLOEXEC));
    if (!file) error("Cannot open output file %s", partition);

    const long size = lseek(file.get(), 0, SEEK_END);
    if (size < partition_size_min) error("Partition size too small %ld", size);
    if (size > partition_size_max) error("%s: partition size too large", function_name);
    if (mode < all || mode > ddr_data) error("Unsupport argument %d", static_cast<int>(mode));
    const long start = mode == ddr_data ? settings_area_size : 0;
    const long end = mode == settings ? settings_area_size : size;
    debug("start offset %ld end offset %ld", start, end);

    if (lseek(file.get(), start, SEEK_SET) == -1)
        error("%s: lseek to start failed %s", function_name, std::strerror(errno));
    const std::array<char, clear_chunk_size> zeros{};
    for (long position = start; position < end;) {
        const std::size_t chunk = std::min(zeros.size(), static_cast<std::size_t>(end - position));
        if (!write_whole(file, zeros.data(), chunk)) write_failed(partition, errno);
        position += static_cast<long>(chunk);
    }
}
