// Notes on pages and reports.
#include "window_model/page_notes.h"

#include "base/app_options.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/vdoc.h"
#include "window_model/preview_texts.h"

namespace qor {
namespace {

std::string counted(std::int32_t count, std::string_view one, std::string_view many) {
  return withNumber(count == 1 ? one : many, count);
}

std::string overflowText(const PageOverflow& overflow) {
  const PreviewTexts& texts = previewTexts();
  std::string text;
  if (overflow.lines > 0) text = counted(overflow.lines, texts.line, texts.lines);
  if (overflow.columns > 0) {
    if (!text.empty()) text += texts.andAlso;
    text += counted(overflow.columns, texts.column, texts.columns);
  }
  const bool single = overflow.lines + overflow.columns == 1;
  return std::string(texts.outsideStart) + text +
         std::string(single ? texts.outsideOne : texts.outsideMany);
}

// Several notes one behind the other.
void append(std::string& text, const std::string& note, std::string_view separator) {
  if (!text.empty()) text += separator;
  text += note;
}

// The printable area as the canvas of a page has it: its corner is logical (0, 0).
Rect printableTwips(const VSetPrn& printer) {
  return {0, 0, twipsFromDots(printer.HorzRes, printer.LogPixelsX),
          twipsFromDots(printer.VertRes, printer.LogPixelsY)};
}

}  // namespace

PageNotes notesOf(VDocPage& page) {
  const VSet& settings = *page.Settings;
  LoadCodePage(settings.Page.BaseCodePage);
  return {overflowOf(page, printableTwips(settings.Prn)), lettersLeftOut(page),
          settings.Page.BaseCodePage};
}

std::string textOf(const PageNotes& notes) {
  constexpr std::string_view kBetween = "   ";
  std::string text;
  if (notes.hasOverflow()) append(text, overflowText(notes.overflow), kBetween);
  if (notes.lettersLeftOut > 0)
    append(text, withNumber(previewTexts().lettersLeftOut, notes.codePage), kBetween);
  return text;
}

std::string reportNote(const VDoc& doc, const TextKind& firstPage) {
  const PreviewTexts& texts = previewTexts();
  std::string text;
  const auto tell = [&text](std::string_view note) { append(text, std::string(note), "\n"); };
  const int codePage = doc.Settings.Page.BaseCodePage;
  if (AppOptions.CodePageGiven && codePage != AppOptions.DocCodePage)
    tell(withNumber(texts.codePageOfSet, codePage));
  if (firstPage.utf8) tell(texts.textIsUtf8);
  if (firstPage.lineFeedsOnly)
    tell(doc.lineEnds() == LineEnds::lineFeeds ? texts.lineFeedsEndLines
                                               : texts.lineFeedsRunTogether);
  return text;
}

const std::vector<int>& offeredCodePages() {
  static const std::vector<int> codePages = {866,   857,   850,   852,   437,   1250, 1251,
                                             1252,  1253,  1254,  1255,  1256,  1257, 28591,
                                             28592, 28595, 28599, 28605, 20866, 21866};
  return codePages;
}

std::string codePageName(int codePage) {
  const std::string number = std::to_string(codePage) + " - ";
  if (codePage > 28590 && codePage <= 28606)
    return number + "ISO 8859-" + std::to_string(codePage - 28590);
  if (codePage == 20866) return number + "KOI8-R";
  if (codePage == 21866) return number + "KOI8-U";
  return number + (codePage >= 1250 && codePage <= 1258 ? "Windows" : "DOS");
}

}  // namespace qor
