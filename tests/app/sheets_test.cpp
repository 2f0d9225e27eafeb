// The sheet of a settings set is one, whether it becomes a picture or paper.
#include <gtest/gtest.h>

#include "platform/picture.h"
#include "support/pdf_reader.h"
#include "support/program.h"

namespace qor::test {
namespace {

struct Sheet {
  int width;  // mm
  int height;
};

struct Row {
  const char* what;
  int size;  // number of the paper
  Sheet stored;
  int orientation;
  Sheet sheet;
};

constexpr Row kRows[] = {
    {"A4 upright", 9, {210, 297}, 1, {210, 297}},
    {"A4 across, as the dialog stores it", 9, {297, 210}, 2, {297, 210}},
    {"A4 across, not swapped", 9, {210, 297}, 2, {297, 210}},
    {"A4 across by another number", 9, {297, 210}, 7, {297, 210}},
    {"A4 upright, swapped", 9, {297, 210}, 1, {210, 297}},
    {"A4 left to the driver", 9, {210, 297}, 0, {210, 297}},
    {"A3 across", 8, {420, 297}, 2, {420, 297}},
    {"A3, sizes of another paper", 8, {210, 297}, 1, {297, 420}},
    {"a ledger lies by nature", 4, {432, 279}, 1, {432, 279}},
    {"a ledger across", 4, {432, 279}, 2, {279, 432}},
    {"own size 256", 256, {150, 100}, 2, {150, 100}},
    {"own size 256 upright", 256, {100, 150}, 1, {100, 150}},
    {"own size 0", 0, {150, 100}, 2, {150, 100}},
    {"own size 0, wide and upright", 0, {150, 100}, 1, {150, 100}},
    {"own size 0, high and across", 0, {100, 150}, 2, {100, 150}},
    {"a number that nobody knows", 4711, {123, 45}, 1, {123, 45}},
};

std::string setOf(const Row& row) {
  const auto line = [](const std::string& key, int value) {
    return "<" + key + " = \"" + std::to_string(value) + "\"/>\r\n";
  };
  return "<Set SetName=\"S\">\r\n<Page>\r\n" + line("PaperSize", row.size) +
         line("PaperWidth", row.stored.width) + line("PaperHeight", row.stored.height) +
         line("Orientation", row.orientation) + "<Page/>\r\n<Set/>\r\n";
}

TEST(Sheets, AreTheSameAsPicturesAndOnPaper) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.what);
    const TemporaryDirectory place;
    place.write("r.txt", "A\r\n");
    place.write("s.vset", setOf(row));
    const Surroundings here = {place.path(), {}, 0};
    EXPECT_EQ(runViewer({"-f", "r.txt", "-i", "s.vset#S", "-export", "o.png"}, here).errors, "");
    EXPECT_EQ(runViewer({"-g", "-f", "r.txt", "-i", "s.vset#S"}, here).errors, "");
    const auto picture = decodePicture(place.read("o.png"));
    ASSERT_TRUE(picture);
    EXPECT_NEAR(picture->width * 25.4 / 96, row.sheet.width, 0.5);
    EXPECT_NEAR(picture->height * 25.4 / 96, row.sheet.height, 0.5);
    const PdfDocument paper = readPdf(place.path("r(print).pdf"));
    EXPECT_NEAR(paper.width, row.sheet.width, 0.5);
    EXPECT_NEAR(paper.height, row.sheet.height, 0.5);
  }
}

}  // namespace
}  // namespace qor::test
