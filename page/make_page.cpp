// Writes what people read of the catalogue: a page to choose from, and the labels that base trees must define.
//
//   make_page SOURCES OUT: the parts of the page are in the folder SOURCES; catalogue.html and labels.md go to OUT
#include "hwknobs_item/config_item.h"
#include "hwknobs_plat/catalogue/fragment.h"
#include "hwknobs_plat/platform.h"
#include "hwknobs_plat/plenv_text.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>

namespace {

using nlohmann::json;

// ---- fragments

// Each as "&label property".
std::vector<std::string> properties_set(const char* fragment) {
    std::vector<std::string> found;
    catalogue::fragment_scanner scanner(fragment);
    while (const auto property = scanner.next())
        found.push_back(fmt::format("&{} {}", property->label, property->name));
    return found;
}

// Those of nodes that a value refers to, too.
std::set<std::string> labels_needed(const std::string& fragment) {
    static const std::regex string(R"re("(\\.|[^"\\])*")re");
    static const std::regex label(R"(&(\w+))");
    const std::string source = std::regex_replace(fragment, string, "");
    std::set<std::string> found;
    for (std::sregex_iterator it(source.begin(), source.end(), label); it != std::sregex_iterator(); ++it)
        found.insert(it->str(1));
    return found;
}

// ---- the catalogue: a list of knobs, each once, and of platforms whose rows refer to them

// What a row does, as tables of both versions know it.
json effect_of(const hwknobs_config& row) {
    json knob = {{"desc", row.desc}, {"sets", json::array()}};
    if (row.pl_setting.key != nullptr) {
        knob["key"] = row.pl_setting.key;
        knob["value"] = row.pl_setting.value;
        knob["sets"].push_back(row.pl_setting.key);
    }
    if (row.dt_fragment != nullptr) {
        knob["fragment"] = row.dt_fragment;
        for (const std::string& property : properties_set(row.dt_fragment)) knob["sets"].push_back(property);
    }
    if (!row.takes_argument()) return knob;
    // To make an item of a row with an argument and both halves ends the program.
    knob["arg"] = "refused";
    if (row.pl_setting.value != nullptr && row.dt_fragment != nullptr) return knob;
    const config_item item(&row, row.id);
    knob["arg"] = item.arg_type_get_string();
    knob["allowed"] = item.allowed_values;
    return knob;
}

// Rows of version 0 have no name and group of their own: they share the knob of any row that does the same.
json collect() {
    json platforms = json::array();
    for (const hwknobs_plat* const plat : hwknobs_platforms())
        platforms.push_back({{"name", plat->name}, {"named", plat->version == version_with_ids}});
    json knobs = json::array();
    std::map<json, std::size_t> places;  // of knobs, with and without a name
    for (const bool named : {true, false})
        for (std::size_t i = 0; i < platforms.size(); ++i) {
            if (platforms[i]["named"] != named) continue;
            std::map<std::uint32_t, std::size_t> rows;  // in the order of `list`
            for (const hwknobs_config& row : hwknobs_configs(*hwknobs_platforms()[i])) {
                const json effect = effect_of(row);
                json knob = effect;
                if (named) knob.update({{"name", row.name}, {"group", get_hwknobs_group_name(row.group)}});
                const auto [place, is_new] = places.try_emplace(knob, knobs.size());
                if (is_new) knobs.push_back(knob);
                places.try_emplace(effect, place->second);
                rows[named ? row.id : static_cast<std::uint32_t>(rows.size() + 1)] = place->second;
            }
            platforms[i]["rows"] = rows;
        }
    return {{"knobs", knobs}, {"platforms", platforms}, {"plenv_capacity", plenv_capacity}};
}

// ---- what is written

std::string read_file(const std::string& path) {
    std::ifstream file(path);
    std::string text(std::istreambuf_iterator<char>(file), {});
    if (!file || text.empty()) throw std::runtime_error("cannot read " + path);
    return text;
}

void write_file(const std::string& path, const std::string& text) {
    std::ofstream file(path);
    file << text;
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

std::string make_page(const json& catalogue, const std::string& sources) {
    std::string page = read_file(sources + "/page.html");
    const auto fill_in = [&page](const std::string& place, const std::string& text) {
        page.replace(page.find(place), place.size(), text);
    };
    for (const std::string part : {"page.css", "rules.js", "page.js"})
        fill_in("<<" + part + ">>", read_file(fmt::format("{}/{}", sources, part)));
    // In JSON "<" is in strings only; spelled like this, no string can end the script element.
    fill_in("<<catalogue>>", std::regex_replace(catalogue.dump(), std::regex("<"), "\\u003c"));
    return page;
}

constexpr std::string_view labels_head = R"(# Labels that base trees must define

A row that asks for a label which the base tree lacks makes the bootloader drop the whole overlay, with all that was
selected beside it. Per platform, these are the labels that its rows ask for, and the properties that they set there.
Made from the tables of the tool; do not edit.
)";

std::string list_labels(const json& catalogue) {
    std::string out(labels_head);
    for (const json& platform : catalogue["platforms"]) {
        std::map<std::string, std::set<std::string>> labels;
        for (const json& row : platform["rows"]) {
            const json& knob = catalogue["knobs"][row[1].get<std::size_t>()];
            for (const std::string& label : labels_needed(knob.value("fragment", ""))) labels.try_emplace(label);
            for (const std::string set : knob["sets"])
                if (const std::size_t blank = set.find(' '); set.starts_with('&'))
                    labels[set.substr(1, blank - 1)].insert(set.substr(blank + 1));
        }
        out += fmt::format("\n## {}\n\nLabels: {}\n\n| label | properties |\n| --- | --- |\n",
                           platform["name"].get<std::string>(), labels.size());
        for (const auto& [label, properties] : labels)
            out += fmt::format("| `{}` | {} |\n", label, fmt::join(properties, ", "));
    }
    return out;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 3) throw std::runtime_error("usage: make_page SOURCES OUT");
        const std::string out = argv[2];
        const json catalogue = collect();
        write_file(out + "/catalogue.html", make_page(catalogue, argv[1]));
        write_file(out + "/labels.md", list_labels(catalogue));
    } catch (const std::exception& e) {
        std::cerr << "make_page: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
