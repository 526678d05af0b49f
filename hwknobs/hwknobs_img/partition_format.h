// The format of the settings partition, and nothing else. The bootloader reads the same bytes, so every size and
// offset is checked here. All integers are little-endian.
//
//   0x00000   section header "hwknobs"         data: the two blocks that follow
//   0x00200   setting info                     name, platform, recovery flag
//   0x00400   plenv block                      key/value settings for the bootloader
//   0x00800   section header "hwknobs-dt"      data: the blob, as large as it is
//   0x00A00   blob                             compiled overlay, in a reserved area of 128 KiB
//   0x20A00   section header "hwknobs-status"  only with the recovery flag
//   0x20C00   status                           only with the recovery flag; filled by the boot side
#pragma once

#include "hwknobs_plat/plenv_text.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// A 32-bit integer as it lies on the device, of any alignment.
class le32 {
public:
    constexpr le32() = default;
    constexpr le32(std::uint32_t value)  // NOLINT(google-explicit-constructor): stands in for the integer
        : bytes_{static_cast<unsigned char>(value), static_cast<unsigned char>(value >> 8),
                 static_cast<unsigned char>(value >> 16), static_cast<unsigned char>(value >> 24)} {}
    constexpr operator std::uint32_t() const {  // NOLINT(google-explicit-constructor)
        return static_cast<std::uint32_t>(bytes_[0]) | static_cast<std::uint32_t>(bytes_[1]) << 8 |
               static_cast<std::uint32_t>(bytes_[2]) << 16 | static_cast<std::uint32_t>(bytes_[3]) << 24;
    }

private:
    unsigned char bytes_[4]{};
};

inline constexpr std::uint32_t section_magic = 0x58881688;
inline constexpr std::uint32_t section_ext_magic = 0x58891689;

struct section_header {
    le32 magic;
    le32 data_size;  ///< bytes of data that follow the header
    std::array<char, 32> name;
    le32 reserved_a;  ///< 0xFFFFFFFF
    le32 reserved_b;  ///< 0xFFFFFFFF
    le32 ext_magic;
    le32 header_size;
    le32 header_version;  ///< 1
    le32 reserved_c;
    le32 reserved_d;
    le32 alignment;  ///< 16: to what the blob is rounded up when it is written last
    std::array<char, 8> reserved_e;
    std::array<char, 432> padding;
};
static_assert(sizeof(section_header) == 512);
static_assert(offsetof(section_header, data_size) == 4);
static_assert(offsetof(section_header, name) == 8);
static_assert(offsetof(section_header, reserved_a) == 40);
static_assert(offsetof(section_header, reserved_b) == 44);
static_assert(offsetof(section_header, ext_magic) == 48);
static_assert(offsetof(section_header, header_size) == 52);
static_assert(offsetof(section_header, header_version) == 56);
static_assert(offsetof(section_header, reserved_c) == 60);
static_assert(offsetof(section_header, reserved_d) == 64);
static_assert(offsetof(section_header, alignment) == 68);
static_assert(offsetof(section_header, reserved_e) == 72);
static_assert(offsetof(section_header, padding) == 80);

inline constexpr std::uint32_t section_alignment = 16;

struct setting_info {
    std::array<char, 32> name;      ///< NUL-terminated
    std::array<char, 12> platform;  ///< NUL-terminated
    std::uint8_t boot_failure_recovery;
    std::array<char, 467> padding;
};
static_assert(sizeof(setting_info) == 512);
static_assert(offsetof(setting_info, platform) == 0x20);
static_assert(offsetof(setting_info, boot_failure_recovery) == 0x2C);
static_assert(offsetof(setting_info, padding) == 0x2D);

using plenv_signature = std::array<char, 8>;
inline constexpr plenv_signature plenv_signature_text = {'E', 'N', 'V', '_', 'v', '1', '\0', '\0'};

struct plenv_block {
    plenv_signature head;
    std::array<char, 1004> entries;  ///< "key=value" and a NUL each, then zeros
    plenv_signature tail;
    le32 checksum;  ///< the sum of the bytes of `entries`
};
static_assert(sizeof(plenv_block) == 1024);
static_assert(offsetof(plenv_block, entries) == 8);
static_assert(offsetof(plenv_block, tail) == 1012);
static_assert(offsetof(plenv_block, checksum) == 1020);
static_assert(sizeof(plenv_block::entries) == plenv_capacity + 1);

inline constexpr std::size_t blob_capacity = 0x20000;

struct partition_layout {
    section_header settings_header;
    setting_info info;
    plenv_block plenv;
    section_header dt_header;
    std::array<char, blob_capacity> blob;
    section_header status_header;
    std::array<char, 512> status;
};
static_assert(sizeof(partition_layout) == 0x20E00);
static_assert(alignof(partition_layout) == 1);
static_assert(offsetof(partition_layout, info) == 0x200);
static_assert(offsetof(partition_layout, plenv) == 0x400);
static_assert(offsetof(partition_layout, dt_header) == 0x800);
static_assert(offsetof(partition_layout, blob) == 0xA00);
static_assert(offsetof(partition_layout, status_header) == 0x20A00);
static_assert(offsetof(partition_layout, status) == 0x20C00);

/// What the first section's data_size covers.
inline constexpr std::uint32_t settings_data_size = sizeof(setting_info) + sizeof(plenv_block);
static_assert(settings_data_size == 0x600);

// The part of the partition that belongs to the settings, and the sizes of partition that are accepted.
inline constexpr long settings_area_size = 0x100000;
inline constexpr long partition_size_min = settings_area_size;
inline constexpr long partition_size_max = 0x8000000;
static_assert(sizeof(partition_layout) <= settings_area_size);
