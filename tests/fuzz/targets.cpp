// The readers of what comes from outside: a partition, a document, a command line; and the templates.
#include "harness.h"

#include "hwknobs_img/image.h"
#include "hwknobs_img/plenv_block.h"
#include "hwknobs_item/config_item.h"
#include "hwknobs_libxml/xmlconfig.h"
#include "hwknobs_main/item_words.h"
#include "hwknobs_record/stored_record.h"

#include <libxml/xmlerror.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

namespace {

constexpr const char* platform = "px8314";

// A whole block, or entries to put into one, with the checksum that it should have: nearly all else would be refused.
// What was read can be written, unless it is too large, and reads the same.
void fuzz_plenv(std::string_view input) {
    plenv_block block{.head = plenv_signature_text, .entries = {}, .tail = plenv_signature_text, .checksum = {}};
    if (input.size() >= sizeof(block)) input.copy(reinterpret_cast<char*>(&block), sizeof(block));
    else input.copy(block.entries.data(), block.entries.size());
    const auto add = [](std::uint32_t sum, char c) { return sum + static_cast<unsigned char>(c); };
    block.checksum = std::accumulate(block.entries.begin(), block.entries.end(), std::uint32_t{0}, add);
    const plenv_map plenv = hwknobs_plenv_parse(block);
    const plenv_block written = hwknobs_plenv_build(plenv);
    [&]() noexcept { must(hwknobs_plenv_parse(written) == plenv); }();  // without a message
}

// Source text, in which stored items are looked for. A record of those that were found has them again.
void fuzz_record(std::string_view input) {
    std::vector<config_item> items;
    std::vector<config_item> again;
    save_hwknobs_effect_status(platform, std::string(input).c_str(), items);
    const std::string record = compose_record(set_command_word, platform, false, items);
    save_hwknobs_effect_status(platform, record.c_str(), again);
    must(std::ranges::equal(items, again, {}, &config_item::number, &config_item::number));
}

// A template, which is checked, given an argument, and rendered. One with "%%" may have forgotten what it takes.
void fuzz_template(std::string_view input) {
    const std::string text(input);
    const hwknobs_config config{.desc = "", .arg_type = 1, .dt_fragment = text.c_str(), .name = ""};
    config_item item(&config, 1);
    const char* const word = item.allowed_values.empty() ? "word" : item.allowed_values.front().c_str();
    const bool is_set = item.arg_set_int32(-1) || item.arg_set_uint32(4000000000) || item.arg_set(word);
    must(is_set == (item.arg_kind != config_arg_kind::none));
    must(item.desc().starts_with("Activate  (1)"));
    try {
        const std::string rendered = item.format_item(text.c_str());
        must(text.find('%') != std::string::npos || rendered == text.c_str());
    } catch (const std::bad_variant_access&) {
        must(text.find("%%") != std::string::npos);
    }
}

// The platform, whether the words are names, and lines with a word each. What can be selected can be rendered.
void fuzz_words(std::string_view input) {
    if (input.empty()) return;
    const auto platforms = hwknobs_platforms();
    const auto choice = static_cast<unsigned char>(input.front());
    std::string words(input.substr(1));
    std::vector<char*> argv;
    for (std::size_t begin = 0; begin < words.size();) {
        const std::size_t end = std::min(words.find('\n', begin), words.size());
        argv.push_back(words.data() + begin);
        words.data()[end] = '\0';
        begin = end + 1;
    }
    const char* const name = platforms[choice / 2 % platforms.size()]->name;
    const auto items = parse_item_set(static_cast<int>(argv.size()), argv.data(), name, true, choice % 2 != 0);
    const hwknobs_image image("default", name, items);
    must(!image.generate_dt().empty());
    hwknobs_plenv_build(image.generate_settings());
}

void say_nothing(void* /*context*/, const char* /*format*/, ...) {}

void fuzz_xml(std::string_view input) {
    xmlSetGenericErrorFunc(nullptr, say_nothing);
    hwknobs_xmlconfig_parse(nullptr, input.data(), static_cast<int>(input.size()));
}

// The beginning of a partition, with source text in place of the blob.
void fuzz_loader(std::string_view input) {
    static const int file = memfd_create("partition", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    std::string partition(input);
    partition.resize(sizeof(partition_layout));
    must(pwrite(file, partition.data(), partition.size(), 0) == static_cast<ssize_t>(partition.size()));
    const auto image = hwknobs_image::get(path.c_str());
    if (image == nullptr) return;
    must(image->name.size() < sizeof(setting_info::name));
    image->generate_dt();
    image->generate_settings();
}

constexpr struct {
    std::string_view name;
    fuzz_target run;
} targets[] = {{"plenv", fuzz_plenv}, {"record", fuzz_record}, {"template", fuzz_template},
               {"words", fuzz_words}, {"xml", fuzz_xml},       {"loader", fuzz_loader}};

}  // namespace

fuzz_target find_target(std::string_view name) {
    const auto* const found = std::ranges::find(targets, name, [](const auto& target) { return target.name; });
    return found != std::end(targets) ? found->run : nullptr;
}
