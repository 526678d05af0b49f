#include "hwknobs_img/partition_reader.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_base/malloced.h"
#include "hwknobs_base/unique_fd.h"
#include "hwknobs_dtc/dt_compiler.h"
#include "hwknobs_dtc/flattened_tree.h"
#include "hwknobs_record/stored_record.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

constexpr std::string_view settings_section_name{"hwknobs", sizeof("hwknobs")};  // with its NUL

// The settings header and the fields of the setting info, as far as the reader looks at them.
constexpr std::size_t info_size_read = offsetof(setting_info, padding);

void read_at(const unique_fd& file, const char* path, std::size_t offset, void* buffer, std::size_t size) {
    if (lseek(file.get(), static_cast<off_t>(offset), SEEK_SET) != static_cast<off_t>(offset))
        error("Cannot lseek file %s (%s)", path, std::strerror(errno));
    if (read_fully(file.get(), buffer, size) < size)
        error("Cannot read file %s dt blob (%s)", path, std::strerror(errno));
}

struct setting_head {
    std::string name;
    std::string plat;
    bool boot_failure_recovery;
};

// Reads the first section header and the setting info. Nothing where there is no setting, or where it cannot be read.
std::optional<setting_head> read_head(const unique_fd& file) {
    section_header header;
    const std::size_t header_read = read_fully(file.get(), &header, sizeof(header));
    if (header_read < sizeof(header)) {
        debug("%s: boot para read failed, size mismatch %zu\n", "load", header_read);
        return std::nullopt;
    }
    if (header.magic != section_magic ||
        !std::string_view(header.name.data(), header.name.size()).starts_with(settings_section_name)) {
        debug("%s: hwknobs data doesn't present at partition\n", "load");
        return std::nullopt;
    }
    setting_info info;
    const std::size_t info_read = read_fully(file.get(), &info, info_size_read);
    if (info_read < info_size_read) {
        debug("%s: boot para read hwknobs header failed, size mismatch %zu\n", "load", info_read);
        return std::nullopt;
    }
    setting_head head{check_ascii_string(info.name), check_ascii_string(info.platform),
                      info.boot_failure_recovery != 0};
    if (head.name.empty()) {
        debug("%s: invalid hwknobs header name\n", "load");
        return std::nullopt;
    }
    if (head.plat.empty()) {
        debug("%s: invalid hwknobs header plat\n", "load");
        return std::nullopt;
    }
    return head;
}

struct stored_overlay {
    malloced<char> source;
    bool is_stored;  ///< the blob area holds a tree
};

// Closes the partition before it runs the compiler.
stored_overlay read_overlay(unique_fd file, const char* path) {
    // The whole reserved area: the compiler finds the blob's real size in the blob.
    const auto blob = std::make_unique_for_overwrite<char[]>(blob_capacity);
    read_at(file, path, offsetof(partition_layout, blob), blob.get(), blob_capacity);
    file.reset();
    malloced<char> source(hwknobs_blob_to_dts(blob.get(), blob_capacity));
    if (source == nullptr) error("No hwknobs device tree blob\n");
    return {std::move(source), is_flattened_tree({blob.get(), blob_capacity})};
}

}  // namespace

std::unique_ptr<hwknobs_partimage> hwknobs_partimage::load(const char* partition) {
    debug("%s filename %s", "load", partition);
    if (partition == nullptr) error("No boot para available");
    unique_fd file(open(partition, O_RDONLY | O_CLOEXEC));
    if (!file) {
        debug("%s: Cannot open file %s", "load", partition);
        return nullptr;
    }
    const auto head = read_head(file);
    if (!head) return nullptr;

    plenv_block block;
    read_at(file, partition, offsetof(partition_layout, plenv), &block, sizeof(block));
    plenv_map plenv = hwknobs_plenv_parse(block);
    const stored_overlay overlay = read_overlay(std::move(file), partition);
    std::string dts = overlay.source.get();
    const bool overlay_unreadable = overlay.is_stored && dts.empty();

    debug("%s: hwknobs info name:%s plat:%s\n", "load", head->name.c_str(), head->plat.c_str());
    return std::make_unique<hwknobs_partimage>(hwknobs_partimage{head->name, hwknobs_get_plat(head->plat.c_str()),
                                                                 head->boot_failure_recovery, std::move(plenv),
                                                                 std::move(dts), overlay_unreadable});
}

bool hwknobs_partimage_dump(const char* partition) {
    const auto stored = hwknobs_partimage::load(partition);
    if (stored == nullptr) {
        std::puts("<<partition>>\n  hwknobs partition setting doesn't exist");
        return true;
    }
    std::printf("<<partition>> hwknobs partition setting name %s plat %s failure recovery %d\n", stored->name.c_str(),
                stored->plat->name, static_cast<int>(stored->boot_failure_recovery));
    std::puts("== plenv ==");
    for (const auto& [key, value] : stored->plenv) std::printf("  %s=%s\n", key.c_str(), value.c_str());
    std::printf("== dts (size: %zu) ==\n", stored->dts.size());
    std::vector<config_item> items;
    save_hwknobs_effect_status(stored->plat->name, stored->dts.c_str(), items);
    for (const config_item& item : items) {
        std::fputs("   ", stdout);
        std::puts(item.desc().c_str());
    }
    return true;
}
