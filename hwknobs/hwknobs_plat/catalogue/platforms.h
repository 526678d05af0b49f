// The platforms of the catalogue, in the order of every search and listing: the test platform, then the tables of
// version 0, then those of version 2, older ones first. Each has a table in a source file of its name.
#pragma once

#include "hwknobs_plat/platform.h"

#include <cstdint>
#include <string_view>

// Name and hardware code, one platform a line. Only the low 16 bits of a code are compared.
// clang-format off
#define HWKNOBS_PLATFORMS(platform) \
    platform(px0000, 0x0000) \
    platform(px1104, 0x1104) \
    platform(px1206, 0x1206) \
    platform(px1310, 0x1310) \
    platform(px2104, 0x2104) \
    platform(px2208, 0x2208) \
    platform(px2312, 0x2312) \
    platform(px3104, 0x3104) \
    platform(px3208, 0x3208) \
    platform(px3312, 0x3312) \
    platform(px4108, 0x4108) \
    platform(px4210, 0x4210) \
    platform(px4312, 0x4312) \
    platform(px5108, 0x5108) \
    platform(px5210, 0x5210) \
    platform(px5312, 0x5312) \
    platform(px6108, 0x6108) \
    platform(px6210, 0x6210) \
    platform(px6314, 0x6314) \
    platform(px7108, 0x7108) \
    platform(px7210, 0x7210) \
    platform(px7314, 0x7314) \
    platform(px8210, 0x8210) \
    platform(px8314, 0x8314)
// clang-format on

/// How many platforms the tool promises, and rows in all their tables together. A table of version 0 has 113 (px1104)
/// to 271 rows (px5312), px0000 aside, one of version 2 has 228 (px6108) to 312 (px8314), with ids up to 344.
inline constexpr std::size_t promised_platforms = 24;
inline constexpr std::size_t promised_rows = 4923;

#define HWKNOBS_DECLARE_PLATFORM(name, code) extern const hwknobs_plat name;
HWKNOBS_PLATFORMS(HWKNOBS_DECLARE_PLATFORM)
#undef HWKNOBS_DECLARE_PLATFORM

struct platform_identity {
    std::string_view name;
    std::uint64_t hw_code;
};

inline constexpr platform_identity platform_identities[] = {
#define HWKNOBS_IDENTIFY_PLATFORM(name, code) {#name, code},
    HWKNOBS_PLATFORMS(HWKNOBS_IDENTIFY_PLATFORM)
#undef HWKNOBS_IDENTIFY_PLATFORM
};
