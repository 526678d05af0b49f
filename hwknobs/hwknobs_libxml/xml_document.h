// An XML document in memory, and its texts.
#pragma once

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>
#include <string_view>

struct free_xml_document {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using xml_document = std::unique_ptr<xmlDoc, free_xml_document>;

/// Text as libxml2 knows it, and back.
inline const xmlChar* xml_text(const char* text) { return reinterpret_cast<const xmlChar*>(text); }
inline const char* plain_text(const xmlChar* text) { return reinterpret_cast<const char*>(text); }

/// Parses a document, after a check that the library is not older than its headers. Null when it is not well formed;
/// the library then says why on standard error.
xml_document parse_xml(const char* buffer, int size);

/// Ends the process if the library ran out of memory: it goes on then, with a part of the document.
void require_memory();

/// Whether the node is an element of that name.
bool is_element(const xmlNode* node, std::string_view name);
