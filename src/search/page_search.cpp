// Searching pages.
#include "search/page_search.h"

#include "document/vcommand.h"
#include "document/vdoc.h"

namespace qor {
namespace {

constexpr int kLinesAStep = 500;

}  // namespace

// What reads the lines that are more than their letters.
struct PageSearch::Reading {
  Reading(VDoc& doc, std::int32_t page) : font(doc.FontAt(page)), commands(doc.Settings, font) {}

  FontState font;
  VCommand commands;
  EmptyTexts empty;
};

PageSearch::PageSearch(VDoc& doc, const FindQuery& query, const LetterRules& rules)
    : doc_(doc),
      letters_(doc.Settings.Page.BaseCodePage),
      matcher_(query, rules, doc.Settings.Page.BaseCodePage),
      filter_(matcher_, letters_),
      texts_(letters_) {
}

PageSearch::~PageSearch() = default;

void PageSearch::start(std::int32_t page, const InputFile& file) {
  reading_.reset();
  lines_.reset();
  texts_.line.clear();
  texts_.placed.clear();
  line_ = 0;
  const std::string_view bytes = doc_.PageBytes(page, file, buffer_);
  if (matcher_.isEmpty() || !filter_.mayHold(bytes, doc_.lineEnds())) return;
  lines_.emplace(bytes, page, PageMode::plain, doc_.lineEnds());
  reading_ = std::make_unique<Reading>(doc_, page);
}

bool PageSearch::step(const Found& found) {
  if (!lines_) return false;
  for (int i = 0; i < kLinesAStep; ++i) {
    const auto line = lines_->next();
    if (!line) {
      lines_.reset();
      findInRows(found);
      return false;
    }
    if (PageFilter::isPlain(line->text)) {
      letters_.append(line->text, texts_.line);
    } else {
      readItems(*line);
    }
    lookAt(texts_.line, found);
    texts_.line.clear();
  }
  return true;
}

void PageSearch::run(std::int32_t page, const InputFile& file, const Found& found) {
  start(page, file);
  while (step(found)) continue;
}

void PageSearch::readItems(const PageLine& line) {
  VDocStr(line.text, reading_->commands, reading_->empty).tell(texts_);
  reading_->commands.forgetItems();
}

void PageSearch::lookAt(std::u32string_view text, const Found& found) {
  matcher_.findIn(text, [&](const TextSpan& span) { found({line_, span}, text); });
  ++line_;
}

void PageSearch::findInRows(const Found& found) {
  for (const std::span<PlacedText> row : orderInRows(texts_.placed)) {
    std::u32string text = std::move(row.front().text);
    for (const PlacedText& next : row.subspan(1)) (text += kBetweenTexts) += next.text;
    lookAt(text, found);
  }
}

}  // namespace qor
