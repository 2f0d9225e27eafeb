// The lines of reports, typed into a document.
#pragma once

#include "document/document_text.h"
#include "document/vdocstr.h"

namespace qor {

class WordDocument;
class WordPictures;

// What the lines of an export share. `pictures` is null where shapes, pictures and barcodes are
// left out.
struct WordTyping {
  WordDocument& document;
  const DocumentText& text;
  WordPictures* pictures = nullptr;
};

// Types the line but for its end. True where a shape or a picture was placed on it. Styles that the
// line leaves on go on behind it, and the next line, which knows nothing of them, turns them off
// where it means to turn them on: documents of the suite have always come out so. Throws what the
// document does.
bool LineToWord(const VDocStr& line, const WordTyping& typing);

}  // namespace qor
