#include "hwknobs_libxml/xml_document.h"

#include "hwknobs_base/diagnostics.h"

#include <libxml/xmlerror.h>
#include <libxml/xmlversion.h>

xml_document parse_xml(const char* buffer, int size) {
    LIBXML_TEST_VERSION
    // No options: entities are not substituted and nothing but the buffer is read.
    return xml_document(xmlReadMemory(buffer, size, "noname.xml", nullptr, 0));
}

void require_memory() {
    const xmlError* const last = xmlGetLastError();
    if (last != nullptr && last->code == XML_ERR_NO_MEMORY) error("No memory for the XML document");
}

bool is_element(const xmlNode* node, std::string_view name) {
    return node->type == XML_ELEMENT_NODE && node->name != nullptr && plain_text(node->name) == name;
}
