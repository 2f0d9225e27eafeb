// Sentences about exports.
#include "window_model/export_words.h"

#include <algorithm>
#include <array>

#include "language/language.h"
#include "platform/system/text_encoding.h"
#include "window_model/export_targets.h"
#include "window_model/preview_texts.h"

namespace qor {
namespace {

constexpr std::size_t kNamesInQuestion = 10;

// By TargetFault, from the first.
constexpr std::array kFaultTexts = {
    &ExportTexts::nameMissing,  &ExportTexts::lineEndInName, &ExportTexts::nameIsDirectory,
    &ExportTexts::nameIsReport, &ExportTexts::nameTooLong,   &ExportTexts::directoryMissing,
    &ExportTexts::noPermission, &ExportTexts::notRegular,    &ExportTexts::nothingToWrite};
static_assert(kFaultTexts.size() == static_cast<std::size_t>(TargetFault::nothingToWrite));

constexpr std::size_t kLongName = 100;  // characters
constexpr std::size_t kRow = 50;        // of a longer one
constexpr std::size_t kMostRows = 8;
constexpr std::string_view kMayBreak = "\u200B";

std::string onOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return text;
}

// A long name may be broken: boxes would be wider than the screen.
std::string readable(std::string_view file) {
  std::string name = onOneLine(std::string(file));
  if (name.size() <= kLongName || firstCharacters(name, kLongName) == name) return name;
  std::string rows;
  std::string_view rest = name;
  for (std::size_t row = 0; row < kMostRows && !rest.empty(); ++row) {
    const std::string_view next = firstCharacters(rest, kRow);
    rows.append(next).append(kMayBreak);
    rest.remove_prefix(next.size());
  }
  return rest.empty() ? rows : rows + "…";
}

}  // namespace

std::string exportWaitText(std::string_view file) {
  const ExportTexts& texts = exportTexts();
  return std::string(texts.ExportWaitPrefix).append(file).append(texts.ExportWaitSuffix);
}

std::string exportedText(std::string_view file, int documentCodePage) {
  const std::string name = readable(file);
  switch (documentCodePage) {
    case 1251: return name + " был создан!";
    case 1252: return name + " File was created!";
    case 1254: return name + " dosyası oluşturuldu!";
    default: return "File was created!";
  }
}

std::string faultText(const TargetLook& look) {
  if (look.fault == TargetFault::none) return {};
  std::string text(exportTexts().*kFaultTexts[static_cast<std::size_t>(look.fault) - 1]);
  if (text.ends_with(' ')) text += readable(look.file);
  return text;
}

std::string replaceQuestion(const std::vector<std::string>& existing) {
  const ExportTexts& texts = exportTexts();
  const std::size_t count = existing.size();
  const std::size_t named = std::min(count, kNamesInQuestion);
  const auto number = [](std::size_t n) { return static_cast<std::int64_t>(n); };
  std::string text =
      count == 1 ? std::string(texts.fileExists) : withNumber(texts.filesExist, number(count));
  for (std::size_t i = 0; i < named; ++i) text += "\n" + readable(existing[i]);
  if (named < count) text += "\n" + withNumber(texts.andMore, number(count - named));
  return text;
}

}  // namespace qor
