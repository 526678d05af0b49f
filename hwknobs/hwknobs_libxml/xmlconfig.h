// A selection as an XML document:
//
//     <hwknobs name="dummy" platform="px0000">
//     <!-- the selected settings, one a line -->
//     <plsetting>
//     <item key="EE" value="FF"/>
//     </plsetting>
//     <dtbo><![CDATA[overlay source]]></dtbo>
//     </hwknobs>
#pragma once

#include "hwknobs_img/image.h"

#include <memory>

/// Writes the document for the image's items to standard output. `partition` is not used.
void hwknobs_xmlconfig_show(const char* partition, std::unique_ptr<hwknobs_image>& image);

/// Reads a document of `size` bytes and writes what it says to the partition: nothing is written unless all of it was
/// understood. Ends the process on any failure.
void hwknobs_xmlconfig_parse(const char* partition, const char* buffer, int size);
