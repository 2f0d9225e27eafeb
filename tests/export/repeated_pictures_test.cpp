// Pictures that reports show again and again, in the documents of both roads to PDF.
#include "platform/print/pdf_file_printer.h"
#include "support/image_magick.h"
#include "support/page_picture.h"
#include "support/test.h"

namespace qor::test {
namespace {

constexpr int kPages = 100;

std::string shown(const std::string& name, int left, int top) {
  return "<img image=\"" + name + "\" imgSS=1 left=" + std::to_string(left) +
         " top=" + std::to_string(top) + " right=" + std::to_string(left + 20) +
         " bottom=" + std::to_string(top + 20) + "/>";
}

// Three pictures, one of them under two names, at places that change from page to page.
std::string longReport() {
  std::string report;
  for (int page = 0; page < kPages; ++page) {
    const int left = 10 + page % 7;
    report += shown("logo.png", left, 10) + shown("twin.png", 50, 10) +
              shown("faded.png", left, 50) + shown("photo.jpg", left, 90) +
              shown("photo.jpg", 50, 90) + (page + 1 < kPages ? "\r\n\f" : "\r\n");
  }
  return report;
}

TEST(RepeatedPictures, areInTheDocumentOnce) {
  const ImageMagick magick;
  const TemporaryDirectory place;
  const auto make = [&](const std::string& name, const std::string& arguments) {
    magick.run("convert-im6.q16 -size 60x60 " + arguments + " " + name);
    return place.write(nameOf(name), magick.folder().read(nameOf(name)));
  };
  place.write("twin.png", readFile(make("PNG24:logo.png", "xc:red")));
  make("PNG32:faded.png", "xc:'rgba(0,0,255,0.5)'");
  make("photo.jpg", "xc:lime");
  place.write("r.txt", longReport());
  for (const auto& [way, pdf] : {std::pair{"-export r.pdf", "r.pdf"}, {"-g", "r(print).pdf"}}) {
    SCOPED_TRACE(way);
    auto arguments = wordsOf(std::string("-f r.txt -codepage 1251 ") + way);
    if (std::string(way) == "-g") arguments = joined(arguments, {"-p", kPdfFilePrinter});
    expectTold(runViewer(arguments, in(place)), "");
    EXPECT_EQ(imagesOf(place.path(pdf)),
              linesOf("rgb 3 8 image|rgb 3 8 image|gray 1 8 image|rgb 3 8 jpeg", '|'));
    EXPECT_NE(place.read(pdf).find(place.read("photo.jpg")), std::string::npos);
    EXPECT_EQ(readPdf(place.path(pdf)).pages, kPages);
    for (const int page : {1, 2, kPages}) {
      const Picture seen = renderPdf(place.path(pdf), page);
      const int left = wholeDotOf(20 + (page - 1) % 7);
      for (const auto& [x, y, color] : {std::tuple{left, 20, 0xFF0000U},
                                        {wholeDotOf(60), 20, 0xFF0000U},
                                        {left, 60, 0x7F7FFFU},
                                        {left, 100, 0x00FF00U},
                                        {wholeDotOf(60), 100, 0x00FF00U},
                                        {left, 40, 0xFFFFFFU}})
        EXPECT_LE(apart(dotAt(seen, x, wholeDotOf(y)), color), 4) << page << " " << x << " " << y;
    }
  }
}

}  // namespace
}  // namespace qor::test
