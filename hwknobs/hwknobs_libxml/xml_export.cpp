#include "hwknobs_base/diagnostics.h"
#include "hwknobs_libxml/xml_document.h"
#include "hwknobs_libxml/xmlconfig.h"

#include <fmt/format.h>

#include <cstdio>
#include <string>

namespace {

constexpr std::string_view document_template =
    "<?xml version=\"1.0\"?>\n<hwknobs name=\"dummy\" platform=\"dummy\">\n</hwknobs>\n";

constexpr assertion_site export_site{"hwknobs/hwknobs_libxml",
                                     "void hwknobs_xmlconfig_show(const char *, std::unique_ptr<hwknobs_image> &)"};

// The text nodes give the file its line layout: the library indents nothing inside elements that hold text.
void add_newline(xmlNodePtr node) {
    xmlNodePtr nl = xmlNewText(xml_text("\n"));
    check_invariant(nl != nullptr, "nl != NULL", {"hwknobs/hwknobs_libxml", "void add_newline(xmlNodePtr)"}, 21);
    xmlAddChild(node, nl);
}

std::string item_comment(const std::vector<config_item>& items) {
    std::string comment = "\n";
    for (const config_item& item : items) comment += fmt::format("\t{}\n", item.desc());
    return comment;
}

void add_comment(xmlNodePtr root, const std::vector<config_item>& items) {
    xmlNodePtr comment = xmlNewComment(xml_text(item_comment(items).c_str()));
    check_invariant(comment != nullptr, "comment_elem != NULL", export_site, 52);
    xmlAddChild(root, comment);
    add_newline(root);
}

void add_plsetting(xmlNodePtr root, const std::vector<config_item>& items) {
    xmlNodePtr plsetting = xmlNewChild(root, nullptr, xml_text("plsetting"), nullptr);
    check_invariant(plsetting != nullptr, "plsetting_elem != NULL", export_site, 59);
    add_newline(plsetting);
    for (const config_item& item : items) {
        const auto plenv = item.plenv_get();
        if (!plenv) continue;
        xmlNodePtr element = xmlNewChild(plsetting, nullptr, xml_text("item"), nullptr);
        check_invariant(element != nullptr, "itemelem != NULL", export_site, 64);
        check_invariant(xmlNewProp(element, xml_text("key"), xml_text(plenv->first.c_str())) != nullptr,
                        "xmlNewProp(itemelem, BAD_CAST \"key\", BAD_CAST plenv.value().first.c_str()) != NULL",
                        export_site, 66);
        check_invariant(xmlNewProp(element, xml_text("value"), xml_text(plenv->second.c_str())) != nullptr,
                        "xmlNewProp(itemelem, BAD_CAST \"value\", BAD_CAST plenv.value().second.c_str()) != NULL",
                        export_site, 68);
        add_newline(plsetting);
    }
    add_newline(root);
}

void add_dtbo(xmlDocPtr document, xmlNodePtr root, const std::string& dts) {
    xmlNodePtr dtbo = xmlNewChild(root, nullptr, xml_text("dtbo"), nullptr);
    check_invariant(dtbo != nullptr, "dtbo_elem != NULL", export_site, 75);
    xmlAddChild(dtbo, xmlNewCDataBlock(document, xml_text(dts.data()), static_cast<int>(dts.size())));
    add_newline(root);
}

}  // namespace

void hwknobs_xmlconfig_show(const char* /*partition*/, std::unique_ptr<hwknobs_image>& image) {
    {
        const xml_document document = parse_xml(document_template.data(), static_cast<int>(document_template.size()));
        check_invariant(document != nullptr, "xmldoc != NULL", export_site, 36);
        xmlNodePtr root = xmlDocGetRootElement(document.get());
        check_invariant(root != nullptr, "setting_elem != NULL", export_site, 39);
        if (!is_element(root, "hwknobs")) error("Template doesn't contain hwknobs root element");
        xmlSetProp(root, xml_text("platform"), xml_text(image->plat->name));
        add_comment(root, image->items);
        add_plsetting(root, image->items);
        add_dtbo(document.get(), root, image->generate_dt());
        require_memory();
        std::fflush(stdout);  // the library may write past our buffer
        if (xmlSaveFormatFileEnc("-", document.get(), "UTF-8", 1) < 0) error("Cannot write the XML document");
    }
    xmlCleanupParser();
}
