#include "hwknobs_base/diagnostics.h"
#include "hwknobs_img/partition_writer.h"
#include "hwknobs_libxml/xml_document.h"
#include "hwknobs_libxml/xmlconfig.h"
#include "hwknobs_record/stored_record.h"

#include <fmt/format.h>

#include <cstdio>
#include <optional>
#include <string>

namespace {

constexpr int document_size_min = 32;

struct free_xml_text {
    void operator()(xmlChar* text) const { xmlFree(text); }
};
using attribute = std::unique_ptr<xmlChar, free_xml_text>;

attribute get_attribute(const xmlNode* node, const char* name) { return attribute(xmlGetProp(node, xml_text(name))); }

// A key met again replaces the earlier value.
void read_plsetting(const xmlNode* plsetting, plenv_map& settings) {
    for (const xmlNode* child = plsetting->children; child != nullptr; child = child->next) {
        if (!is_element(child, "item")) continue;
        const attribute key = get_attribute(child, "key");
        const attribute value = get_attribute(child, "value");
        if (key == nullptr || value == nullptr) {
            std::printf("WARN: skip null value %p, %p\n", static_cast<void*>(key.get()),
                        static_cast<void*>(value.get()));
            continue;
        }
        settings[plain_text(key.get())] = plain_text(value.get());
    }
}

// The first child alone holds the source; the record of the run is appended to it.
std::string read_dtbo(const xmlNode* dtbo, const char* plat) {
    const xmlNode* const source = dtbo->children;
    if (source == nullptr) error("Empty dtbo section\n");
    if (source->type != XML_CDATA_SECTION_NODE && source->type != XML_TEXT_NODE)
        error("The dtbo section does not begin with text or CDATA");
    return fmt::format("{}\n{}", plain_text(source->content),
                       compose_record(import_command_word, plat, std::nullopt, {}));
}

}  // namespace

void hwknobs_xmlconfig_parse(const char* partition, const char* buffer, int size) {
    if (size < document_size_min) error("xml config file size too small");
    const xml_document document = parse_xml(buffer, size);
    if (document == nullptr) error("Could not parse XML file content\n");
    // With one come entities. They are not followed, and a text with a hole in it is not one to boot with.
    if (document->intSubset != nullptr) error("The document has a document type declaration");
    const xmlNode* const root = xmlDocGetRootElement(document.get());
    if (root == nullptr || !is_element(root, "hwknobs")) error("Input file doesn't have hwknobs root element");
    const attribute name = get_attribute(root, "name");
    const attribute platform = get_attribute(root, "platform");
    if (name == nullptr || platform == nullptr) error("Invalid setting file");
    const hwknobs_plat* const plat = hwknobs_get_plat(plain_text(platform.get()));
    std::printf("\tname %s platform %s\n", plain_text(name.get()), plat->name);

    plenv_map settings;
    std::optional<std::string> dts;
    for (const xmlNode* child = root->children; child != nullptr; child = child->next) {
        if (is_element(child, "plsetting")) read_plsetting(child, settings);
        if (is_element(child, "dtbo")) dts = read_dtbo(child, plat->name);
    }
    require_memory();
    hwknobs_generate_partimage(partition, plain_text(name.get()), plain_text(platform.get()), settings,
                               dts ? dts->c_str() : nullptr, false);
    xmlCleanupParser();
}
