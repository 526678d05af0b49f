// The commands that write a selection as XML and apply such a document.
#include "hwknobs_base/diagnostics.h"
#include "hwknobs_img/partition_lock.h"
#include "hwknobs_libxml/xmlconfig.h"
#include "hwknobs_main/commands.h"
#include "hwknobs_main/item_words.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <vector>

namespace {

constexpr assertion_site import_site{"hwknobs/hwknobs_main",
                                     "void parse_xmlconfig_set_command(const char *, const int, char **)"};

std::FILE* open_input(const char* path) {
    std::FILE* const file = std::fopen(path, "re");  // not for the compiler to inherit
    if (file == nullptr) error("Can't open input file %s, %d\n", path, errno);
    std::printf("Config generate (%s)\n", path);
    return file;
}

// A document has less than 4096 bytes: a full chunk is a broken invariant.
std::vector<char> read_all(std::FILE* file) {
    std::vector<char> data;
    while (std::feof(file) == 0 && std::ferror(file) == 0) {
        std::array<char, 4096> buf{};
        const std::size_t n = std::fread(buf.data(), 1, buf.size(), file);
        check_invariant(n < buf.size(), "n < sizeof(buf)", import_site, 537);
        data.insert(data.end(), buf.begin(), buf.begin() + static_cast<std::ptrdiff_t>(n));
    }
    return data;
}

void parse_xmlconfig_set_command(const char* partition, int argc, char** argv) {
    const bool from_stdin = argc == 1;
    if (from_stdin) std::puts("Config generate (stdin)");
    std::FILE* const infp = from_stdin ? stdin : open_input(argv[1]);
    const std::vector<char> data = read_all(infp);
    const partition_lock lock(partition);
    hwknobs_xmlconfig_parse(partition, data.data(), static_cast<int>(data.size()));
    if (!from_stdin) check_invariant(std::fclose(infp) != EOF, "fclose(infp) != EOF", import_site, 543);
    std::puts("config generate ok");
}

}  // namespace

int run_xmlconfig_show_command(const global_options& global, int argc, char** argv) {
    const auto items = parse_item_set(argc - 1, argv + 1, global.plat, true, true);
    if (items.empty()) error("No item");
    auto image = std::make_unique<hwknobs_image>("default", global.plat, items);
    hwknobs_xmlconfig_show(global.file, image);
    return 0;
}

int run_xmlconfig_set_command(const global_options& global, int argc, char** argv) {
    parse_xmlconfig_set_command(global.file, argc, argv);
    return 0;
}
