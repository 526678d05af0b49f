#include "hwknobs_img/plenv_block.h"

#include "hwknobs_base/diagnostics.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <string_view>

namespace {

std::uint32_t checksum(const plenv_block& block) {
    return std::accumulate(block.entries.begin(), block.entries.end(), std::uint32_t{0},
                           [](std::uint32_t sum, char c) { return sum + static_cast<unsigned char>(c); });
}

// Takes the leading run of characters that `belongs` from `rest`.
std::string_view take_while(std::string_view& rest, bool (*belongs)(char)) {
    const auto end = std::ranges::find_if_not(rest, belongs);
    const auto length = static_cast<std::size_t>(end - rest.begin());
    const std::string_view taken = rest.substr(0, length);
    rest.remove_prefix(length);
    return taken;
}

}  // namespace

plenv_block hwknobs_plenv_build(const plenv_map& plenv) {
    std::string entries;
    for (const auto& [key, value] : plenv) {
        entries += fmt::format("{}={}", key, value);
        entries += '\0';
    }
    if (entries.size() > plenv_capacity)
        error("plenv settings need %zu bytes, the partition holds %zu", entries.size(), plenv_capacity);

    plenv_block block{};
    block.head = plenv_signature_text;
    std::ranges::copy(entries, block.entries.begin());
    block.tail = plenv_signature_text;
    block.checksum = checksum(block);
    return block;
}

plenv_map hwknobs_plenv_parse(const plenv_block& block) {
    plenv_map plenv;
    if (block.head != plenv_signature_text || block.tail != plenv_signature_text) {
        debug("invalid plenv signature\n");
        return plenv;
    }
    const std::uint32_t sum = checksum(block);
    if (block.checksum != sum)
        error("plenv checksum failed expect: %x, read: %x", static_cast<std::uint32_t>(block.checksum), sum);

    // Up to the block's end: a key that runs into the second signature is found damaged there, a value takes it in.
    std::string_view rest(reinterpret_cast<const char*>(&block), sizeof(block));
    rest.remove_prefix(offsetof(plenv_block, entries));
    while (!rest.empty()) {
        const std::string_view key = take_while(rest, is_plenv_key_char);
        if (key.empty()) break;
        if (!rest.starts_with('=')) error("plenv corrupted, equal");
        rest.remove_prefix(1);
        const std::string_view value = take_while(rest, is_plenv_value_char);
        if (!rest.starts_with('\0')) {
            const char found = rest.empty() ? '\0' : rest.front();
            error("plenv corrupted, null(%x)", static_cast<unsigned int>(static_cast<unsigned char>(found)));
        }
        rest.remove_prefix(1);
        plenv.emplace(key, value);
    }
    return plenv;
}

std::string check_ascii_string(std::span<const char> field) {
    const auto end = std::ranges::find(field, '\0');
    const bool ascii = std::all_of(field.begin(), end, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return end != field.end() && ascii ? std::string(field.begin(), end) : std::string();
}
