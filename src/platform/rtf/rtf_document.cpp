// The text goes into a spool: the fonts that it takes are told before it.
#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/units.h"
#include "platform/rtf/rtf_shapes.h"
#include "platform/rtf/rtf_text.h"
#include "platform/rtf/word_document.h"
#include "platform/system/output_file.h"
#include "platform/system/spool_file.h"

namespace qor {
namespace {

constexpr double kMostHalfPoints = 3276;
constexpr double kLeastHalfPoints = 2;

// How characters look, and how they do at the start of a text.
struct Style {
  std::size_t font = 0;  // of the document's
  int halfPoints = 24;
  bool bold = false;
  bool italic = false;
  bool underline = false;

  bool operator==(const Style&) const = default;
};

class RtfDocument : public WordDocument {
 public:
  explicit RtfDocument(OutputFile& file) : file_(file), body_(file.target()) {}

  void setPage(const WordPage& page) override { page_ = page; }
  void setFont(std::string_view face, double points) override;
  void toggleBold() override { wanted_.bold = !wanted_.bold; }
  void toggleItalic() override { wanted_.italic = !wanted_.italic; }
  void toggleUnderline() override { wanted_.underline = !wanted_.underline; }
  void typeText(std::string_view text) override;
  void endParagraph() override;
  void breakPage(WordBreak way) override;
  void addShape(const WordShape& shape) override;
  void addPicture(const EmbeddedPicture& picture, const WordPicture& place) override;
  void save() override;

 private:
  void flush();
  void breakBeforeText();
  void breakBeforeParagraph();
  std::size_t fontNamed(std::string_view face);
  void takeStyle();
  void switchTo(bool wanted, bool written, std::string_view word);
  std::string head() const;

  OutputFile& file_;
  SpoolFile body_;
  std::string line_;  // what isn't in the body yet
  WordPage page_;
  std::optional<WordBreak> break_;  // waits for what stands behind it
  bool breaks_before_ = false;      // the paragraph has a page break before it
  std::vector<std::string> faces_;
  std::map<std::string, std::size_t, std::less<>> fonts_;
  Style wanted_;   // of what is typed next
  Style written_;  // that the text has last been given
  int objects_ = 0;
};

std::size_t RtfDocument::fontNamed(std::string_view face) {
  if (wanted_.font < faces_.size() && faces_[wanted_.font] == face) return wanted_.font;
  const auto known = fonts_.find(face);
  if (known != fonts_.end()) return known->second;
  faces_.emplace_back(face);
  return fonts_[faces_.back()] = faces_.size() - 1;
}

void RtfDocument::setFont(std::string_view face, double points) {
  wanted_.font = fontNamed(face);
  wanted_.halfPoints =
      static_cast<int>(std::clamp(std::round(points * 2), kLeastHalfPoints, kMostHalfPoints));
}

void RtfDocument::switchTo(bool wanted, bool written, std::string_view word) {
  if (wanted == written) return;
  line_ += word;
  if (!wanted) line_ += '0';
}

// Only what differs is told, with a blank behind it.
void RtfDocument::takeStyle() {
  if (wanted_ == written_) return;
  if (wanted_.font != written_.font) line_.append("\\f").append(std::to_string(wanted_.font));
  if (wanted_.halfPoints != written_.halfPoints)
    line_.append("\\fs").append(std::to_string(wanted_.halfPoints));
  switchTo(wanted_.bold, written_.bold, "\\b");
  switchTo(wanted_.italic, written_.italic, "\\i");
  switchTo(wanted_.underline, written_.underline, "\\ul");
  line_ += ' ';
  written_ = wanted_;
}

void RtfDocument::flush() {
  body_.write(line_);
  line_.clear();
}

void RtfDocument::breakPage(WordBreak way) {
  if (break_) breakBeforeText();
  break_ = way;
}

void RtfDocument::breakBeforeText() {
  if (const auto way = std::exchange(break_, std::nullopt))
    line_ += way == WordBreak::typed ? "\\page\n" : "{\\page}\n";
}

// Where a page starts with no text, some readers lose a break that is text itself, or put the
// page's shapes in a paragraph of their own.
void RtfDocument::breakBeforeParagraph() {
  if (!std::exchange(break_, std::nullopt)) return;
  line_ += "\\pagebb ";
  breaks_before_ = true;
}

void RtfDocument::typeText(std::string_view text) {
  if (text.empty()) return;
  breakBeforeText();
  takeStyle();
  appendRtfText(text, line_);
}

// An empty one is as high as its font, too.
void RtfDocument::endParagraph() {
  breakBeforeParagraph();
  takeStyle();
  line_ += "\\par\n";
  if (std::exchange(breaks_before_, false)) line_ += "\\pard\n";
  flush();
}

void RtfDocument::addShape(const WordShape& shape) {
  breakBeforeParagraph();
  appendRtfShape(shape, ++objects_, line_);
  flush();
}

void RtfDocument::addPicture(const EmbeddedPicture& picture, const WordPicture& place) {
  breakBeforeParagraph();
  flush();
  writeRtfPicture(picture, place, ++objects_, body_);
}

std::string RtfDocument::head() const {
  std::string head = R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl)";
  for (std::size_t i = 0; i < faces_.size(); ++i) {
    head.append("{\\f").append(std::to_string(i)).append("\\fnil\\fcharset0 ");
    appendRtfName(faces_[i], head);
    head += ";}";
  }
  head += "}\n";
  const auto append = [&head](const char* word, std::int32_t twips) {
    head.append(word).append(std::to_string(twips));
  };
  append("\\paperw", std::max(1, twipsFromMillimetres(page_.width)));
  append("\\paperh", std::max(1, twipsFromMillimetres(page_.height)));
  for (const char* word : {"\\margl", "\\margr", "\\margt", "\\margb"})
    append(word, twipsFromPoints(page_.margin));
  if (page_.width > page_.height) head += "\\landscape";
  // Some readers would otherwise widen rows of blanks.
  return head += "\\dntblnsbdb\\pard\\plain\n";
}

void RtfDocument::save() {
  flush();
  file_.write(head());
  body_.copyTo(file_);
  file_.write("}\n");
}

}  // namespace

std::unique_ptr<WordDocument> makeRtfDocument(OutputFile& file) {
  return std::make_unique<RtfDocument>(file);
}

}  // namespace qor
