// Families to choose from, on systems with few fonts.
#include "platform/fonts/font_families.h"

#include <iostream>

#include "support/font_system.h"
#include "support/test.h"

namespace qor::test {
namespace {

// Runs in a process of its own, since fontconfig reads the system once. It has a place of its own,
// too, which nobody else removes.
[[noreturn]] void tellFamilies(const std::string& charsets, const std::string& wanted,
                               const TemporaryDirectory& place) {
  std::string told;
  for (const std::string& charset : wordsOf(charsets)) {
    told += charset + ":";
    for (const std::string& name : trueTypeFamilies(std::stoi(charset))) told += name + ",";
    told += " ";
  }
  for (const std::string& name : linesOf(wanted, '|')) told += hasFamily(name) ? "1" : "0";
  std::cerr << told << std::flush;
  std::filesystem::remove_all(place.path());
  std::_Exit(0);
}

TEST(FontFamilies, standInForThoseOfReports) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const TemporaryDirectory place;
  const std::string asked = "Liberation Mono|LIBERATION Serif|Arial|Courier New|Liberation||";
  const char* const mono = "Liberation Mono|Liberation Serif";
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {mono, "", "0:Liberation Mono,Liberation Serif, 2: 134: 110000"},
      {mono, "Courier New=Liberation Mono|Verdana=Liberation Mono",
       "0:Courier New,Liberation Mono,Liberation Serif, 2: 134: 110100"},
      {"Liberation Sans|Liberation Serif", "Arial=Liberation Sans|Times New Roman=Liberation Sans",
       "0:Arial,Liberation Sans,Liberation Serif,Times New Roman, 2: 134: 011000"}};
  for (const auto& [families, standIns, told] : rows) {
    const std::string file = place.write("fonts.conf", systemOf(families, standIns));
    const Variable variable("FONTCONFIG_FILE", file.c_str());
    EXPECT_EXIT(tellFamilies("0 2 134", asked, place), testing::ExitedWithCode(0),
                std::string("^") + told + "$");
  }
}

}  // namespace
}  // namespace qor::test
