// Lines over pages: their file, and how they move.
#include "support/test.h"
#include "window_model/line_file.h"
#include "window_model/line_look.h"
#include "window_model/line_moves.h"

namespace qor::test {
namespace {

std::string told(const LineLook& look) {
  return std::to_string(look.height) + " " + std::to_string(look.color) + " " +
         std::to_string(look.penStyle) + " " + std::to_string(look.penWidth) + " " +
         std::to_string(look.lastTop) + " " + std::to_string(look.showFlag);
}

// A colour is read under a key that ends with a blank, and written under one that doesn't.
TEST(LineLook, isReadFromItsSection) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"", "18 255 2 1 0 0", "18 255 2 1 0 0"},
      {"[RowSet]\nHeight=30\nColor =65280\nPenStyle=4\nPenWidth=3\nLastTop=77\nShowFlag=1\n"
       "[ShapeSet]\nheight = 5\n",
       "30 65280 4 3 77 1", "5 255 2 1 0 0"},
      {"\xEF\xBB\xBF[ROWSET]\r\n HEIGHT = 9 \r\n[Other]\nHeight=1\n[shapeset]\nColor=5\nLastTop=-3",
       "9 255 2 1 0 0", "18 255 2 1 -3 0"},
      {"[RowSet]\nHeight=-5\nPenWidth=99\nPenStyle=x\nColor =-1\nLastTop=999999999\nShowFlag=2\n"
       "[ShapeSet]\nHeight=99999\nPenWidth=0\nHeight=7\nColor =$FF0000",
       "1 16777215 2 10 100000 2", "10000 16711680 2 1 0 0"}};
  for (const auto& [ini, row, shape] : rows) {
    EXPECT_EQ(told(lookIn(ini, LineKind::row)), row) << ini;
    EXPECT_EQ(told(lookIn(ini, LineKind::shape)), shape) << ini;
  }
  EXPECT_EQ(withLook("; mine\r\n[ShapeSet]\r\nColor =1\r\nheight=5\r\nOwn=x\r\n\r\n[RowSet]\r\nA=b",
                     LineKind::shape, {20, 7, 3, 2, 55, 1}),
            "; mine\r\n[ShapeSet]\r\nColor =1\r\nHeight=20\r\nOwn=x\r\nColor=7\r\nPenStyle=3\r\n"
            "PenWidth=2\r\nLastTop=55\r\nShowFlag=1\r\n\r\n[RowSet]\r\nA=b\r\n");
  EXPECT_EQ(withLook("", LineKind::row, {}),
            "[RowSet]\r\nHeight=18\r\nColor=255\r\nPenStyle=2\r\nPenWidth=1\r\nLastTop=0\r\n"
            "ShowFlag=0\r\n");
  EXPECT_EQ(withTop("[RowSet]\nLastTop=1\n", LineKind::row, 9), "[RowSet]\r\nLastTop=9\r\n");
  const PenStyle styles[] = {PenStyle::dot,     PenStyle::solid,      PenStyle::dash, PenStyle::dot,
                             PenStyle::dashDot, PenStyle::dashDotDot, PenStyle::dot};
  for (int style = -1; style <= 5; ++style) EXPECT_EQ(penOf(style), styles[style + 1]) << style;
}

// The user's own file goes before that beside the program, which is the one that is made.
TEST(LineFile, isTheUsersOwnWhereTheOtherCannotBe) {
  const TemporaryDirectory place;
  const std::string program = place.path("bin/"), user = place.path("home/QOR/");
  std::filesystem::create_directory(program);
  const LineFile file(program, user);
  EXPECT_EQ(file.read(), "");
  file.write("one");
  EXPECT_TRUE(place.read("bin/QorRow.ini") == "one" && file.read() == "one");
  EXPECT_FALSE(place.has("home"));
  std::filesystem::remove(program + "QorRow.ini");
  std::filesystem::create_directory(program + "QorRow.ini");
  file.write("two");
  EXPECT_EQ(place.read("home/QOR/QorRow.ini"), "two");
  std::filesystem::remove(program + "QorRow.ini");
  place.write("bin/QorRow.ini", "shared");
  EXPECT_EQ(file.read(), "two");
  file.write("three");
  EXPECT_EQ(place.read("bin/QorRow.ini") + place.read("home/QOR/QorRow.ini"), "sharedthree");
  place.write("home/QOR/QorRow.ini", std::string((1 << 20) + 1, ' '));
  EXPECT_THROW(file.read(), FileError) << "or it would be written over";
  EXPECT_THROW(
      LineFile(place.path("bin/QorRow.ini/"), place.path("home/QOR/QorRow.ini/")).write(""),
      FileError);
}

TEST(LineMoves, endAtThePageAndTheArea) {
  const LineRoom small = {10, 300}, tall = {10, 2000};
  EXPECT_FALSE(acceptsTop(small, 10, 18));
  EXPECT_TRUE(acceptsTop(small, 11, 18));
  EXPECT_TRUE(acceptsTop(small, 281, 18));
  EXPECT_FALSE(acceptsTop(small, 282, 18));
  EXPECT_FALSE(acceptsTop(small, 20, 400)) << "no drag while it is too high";
  const std::tuple<LineRoom, int, int, int, int> steps[] = {
      {small, 100, 20, 120, 0}, {small, 100, -20, 80, 0}, {small, 31, -20, 11, 0},
      {small, 30, -20, 30, -1}, {small, 261, 20, 281, 0}, {small, 262, 20, 262, 1},
      {tall, 852, 20, 872, 0},  {tall, 853, 20, 853, 1},  {small, 5, -20, 5, -1},
      {{10, 20}, 11, 20, 11, 1}};
  for (const auto& [room, top, way, next, turn] : steps) {
    const LineStep step = lineStep(room, top, 18, way);
    EXPECT_TRUE(step.top == next && step.turn == turn) << top << way << step.top << step.turn;
  }
  EXPECT_EQ(lowestTop({10, 20}, 18), 11);
  const std::tuple<int, int, int> keys[] = {{100, 1, 101},  {0, 1, 11},    {0, -1, 0},
                                            {11, -1, 11},   {281, 1, 281}, {275, 15, 281},
                                            {500, -1, 281}, {500, 1, 500}};
  for (const auto& [top, way, next] : keys) EXPECT_EQ(keyTop(small, top, 18, way), next) << top;
  const std::pair<int, int> sights[] = {{-5, 0}, {0, 0}, {282, 282}, {283, 282}, {9999, 282}};
  for (const auto& [top, seen] : sights) EXPECT_EQ(topInSight(small, top, 18), seen);
  EXPECT_EQ(topInSight({10, 5}, 7, 18), 0);
  EXPECT_TRUE(isNearTop(small, 27, 18) && !isNearTop(small, 28, 18));
  EXPECT_EQ(lineHint("Line", 12.34), "Line Y = 12.3 mm\n");
  EXPECT_EQ(lineHint("Line", -0.04), "Line Y = 0.0 mm\n");
  EXPECT_EQ(lineHint("Line", -3.96), "Line Y = -4.0 mm\n");
}

}  // namespace
}  // namespace qor::test
