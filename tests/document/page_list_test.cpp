// Page lists on their own: what they hold and how many of a report's pages that is.
#include "document/page_list.h"

#include "support/test.h"

namespace qor::test {
namespace {

TEST(PageList, countsPagesOnce) {
  // The list, the pages of the report, and how many of them are in it.
  std::vector<std::tuple<std::string, std::int32_t, std::int32_t>> rows = {
      {"", 9, 0},        {"5-3", 9, 0},  {"7", 6, 0},       {"0", 6, 0},
      {"0-2", 6, 2},     {"4-99", 6, 3}, {"1-3,2-5", 9, 5}, {"1-9,2-3,5", 9, 9},
      {"3-4,1-2", 4, 4}, {"5--3", 9, 5}, {"1-5", 0, 0},     {"1-5", -1, 0}};
  rows.insert(rows.end(), {{"2-5,1-3,5,9-12", 10, 7},
                           {"$FFFFFFFE-$FFFFFFFF,2", 2147483647, 1},
                           {"0-$FFFFFFFF,1-3", 2147483647, 2147483647},
                           {"2-2147483647", 2147483647, 2147483646},
                           {times(19, "2,") + "4", 9, 2},
                           {times(20, "2,") + "4", 9, 1},
                           {"2," + std::string(254, ' ') + "4,5", 9, 2},
                           {"2-" + std::string(254, ' ') + "41", 99, 3}});
  for (const auto& [text, pages, count] : rows) {
    SCOPED_TRACE(text);
    const PageList list(text);
    EXPECT_EQ(list.isEmpty(), text.empty());
    EXPECT_EQ(list.countOf(pages), count);
    std::int32_t held = 0;
    for (std::int32_t page = 1; page <= pages && pages < 100; ++page) held += list.has(page);
    EXPECT_EQ(held, pages < 100 ? count : 0);
  }
  EXPECT_TRUE(PageList("5--3").has(2147483647));
  for (const char* refused : {"-5", "5-", " ", ",1", "2147483648"})
    EXPECT_THROW(PageList{refused}, ConversionError) << refused;
}

}  // namespace
}  // namespace qor::test
