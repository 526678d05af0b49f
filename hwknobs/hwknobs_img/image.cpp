#include "hwknobs_img/image.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_dtc/dt_compiler.h"
#include "hwknobs_img/partition_reader.h"
#include "hwknobs_record/stored_record.h"

#include <algorithm>

hwknobs_image::hwknobs_image(const char* name, const char* plat, const std::vector<config_item>& items)
    : name(name != nullptr ? name : ""),
      plat(hwknobs_get_plat(plat)),
      items(items) {}

std::unique_ptr<hwknobs_image> hwknobs_image::get(const char* partition) {
    const auto stored = hwknobs_partimage::load(partition);
    if (stored == nullptr) return nullptr;
    // Nothing tells which items are stored. Going on would write the setting without them.
    if (stored->overlay_unreadable)
        error("Cannot change the setting in %s: '%s' gave no source for it, the stored items are unknown", partition,
              hwknobs_dt_compiler());
    std::unique_ptr<hwknobs_image> image(new hwknobs_image(stored->plat));
    image->name = stored->name;
    image->boot_failure_recovery = stored->boot_failure_recovery;
    save_hwknobs_effect_status(stored->plat->name, stored->dts.c_str(), image->items);
    return image;
}

bool hwknobs_image::item_remove(const std::string_view& name) {
    const auto found = std::ranges::find(items, name, &config_item::name);
    if (found == items.end()) return false;
    items.erase(found);
    return true;
}

bool hwknobs_image::item_update(const config_item& in) {
    const auto pos = std::ranges::find(items, in.cfg, &config_item::cfg);
    if (pos == items.end()) {
        items.push_back(in);
        return true;
    }
    constexpr assertion_site site{"hwknobs/hwknobs_img", "bool hwknobs_image::item_update(const config_item &)"};
    check_invariant(pos->arg_copy(in), "pos->arg_copy(in)", site, 786);
    return true;
}

std::string hwknobs_image::generate_dt() const {
    std::string dts = "/dts-v1/;\n/plugin/;\n";
    for (const config_item& item : items)
        if (item.cfg->dt_fragment != nullptr) dts += item.format_item(item.cfg->dt_fragment) + "\n";
    return dts;
}

plenv_map hwknobs_image::generate_settings() const {
    plenv_map settings;
    for (const config_item& item : items)
        if (auto pair = item.plenv_get()) settings[pair->first] = std::move(pair->second);
    return settings;
}
