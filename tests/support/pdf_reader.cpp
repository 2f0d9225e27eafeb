#include "support/pdf_reader.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <stdexcept>

#include "support/program.h"
#include "support/rows.h"

namespace qor::test {
namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;

std::string valueBehind(const std::string& text, const std::string& key, const char* end) {
  const auto place = text.find(key);
  if (place == std::string::npos) return {};
  const auto first = text.find_first_not_of(' ', place + key.size());
  return text.substr(first, text.find(end, first) - first);
}

double millimetres(const std::string& line, const std::string& key) {
  return std::atof(valueBehind(line, key + "=\"", "\"").c_str()) * kMillimetresPerPoint;
}

}  // namespace

PdfWord PdfDocument::word(const std::string& text) const {
  const auto found = std::ranges::find(words, text, &PdfWord::text);
  return found == words.end() ? PdfWord{} : *found;
}

PdfDocument readPdf(const std::string& path) {
  PdfDocument document;
  const std::string information = run({"pdfinfo", path}).output;
  document.pages = std::atoi(valueBehind(information, "Pages:", "\n").c_str());
  document.title = valueBehind(information, "Title:", "\n");
  int page = 0;
  for (const std::string& line : linesOf(run({"pdftotext", "-bbox", path, "-"}).output)) {
    if (line.find("<page ") != std::string::npos && ++page == 1) {
      document.width = millimetres(line, "width");
      document.height = millimetres(line, "height");
    }
    if (line.find("<word ") == std::string::npos) continue;
    document.words.push_back({page, millimetres(line, "xMin"), millimetres(line, "yMin"),
                              valueBehind(line, "\">", "</word>")});
  }
  return document;
}

std::string unpackedPdf(const std::string& path) {
  return run({"qpdf", "--qdf", "--object-streams=disable", path, "-"}).output;
}

std::vector<std::string> imagesOf(const std::string& path) {
  std::vector<std::string> images;
  std::set<std::string> objects;
  for (const std::string& line : linesOf(run({"pdfimages", "-list", path}).output)) {
    const auto cells = wordsOf(line);
    if (cells.size() < 12 || cells[0] == "page" || !objects.insert(cells[2] + cells[10]).second)
      continue;
    images.push_back(cells[5] + " " + cells[6] + " " + cells[7] + " " + cells[8]);
  }
  return images;
}

Picture renderPdf(const std::string& path, int page) {
  const TemporaryDirectory place;
  const std::string number = std::to_string(page);
  run({"pdftoppm", "-r", "96", "-png", "-singlefile", "-f", number, "-l", number, path,
       place.path("page")});
  auto picture = decodePicture(place.read("page.png"));
  if (!picture) throw std::runtime_error("no page " + number + " in " + path);
  return *picture;
}

}  // namespace qor::test
