// What the tool knows of a compiled device tree: the first two words of its header, which are big-endian.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

/// The first word of every flattened tree, as the Devicetree Specification has it.
inline constexpr std::array<unsigned char, 4> flattened_tree_magic = {0xD0, 0x0D, 0xFE, 0xED};

/// Whether the blob begins like a flattened tree.
inline bool is_flattened_tree(std::span<const char> blob) {
    if (blob.size() < flattened_tree_magic.size()) return false;
    return std::ranges::equal(blob.first(flattened_tree_magic.size()), flattened_tree_magic,
                              [](char a, unsigned char b) { return static_cast<unsigned char>(a) == b; });
}

/// Whether the blob is the beginning of a tree, and less than the total size in its header.
inline bool is_truncated_tree(std::span<const char> blob) {
    constexpr std::size_t size_offset = 4;
    constexpr std::size_t size_end = 8;
    if (!is_flattened_tree(blob)) return false;
    if (blob.size() < size_end) return true;
    std::uint32_t total_size = 0;
    for (const char byte : blob.first(size_end).subspan(size_offset))
        total_size = total_size << 8 | static_cast<unsigned char>(byte);
    return blob.size() < total_size;
}
