// Drawing objects of RTF: shapes and pictures at places of the sheet, behind the text.
#pragma once

#include <string>

#include "platform/rtf/word_document.h"
#include "platform/system/byte_sink.h"

namespace qor {

// Both are the `number`th one of their document, from 1.
void appendRtfShape(const WordShape& shape, int number, std::string& rtf);
void writeRtfPicture(const EmbeddedPicture& picture, const WordPicture& place, int number,
                     ByteSink& sink);

}  // namespace qor
