// The keys at a glance, and the way to the guide.
#include "windows/start/key_help.h"

#include <QPushButton>
#include <QTableWidget>

#include "windows/start/opened.h"

namespace qor::test {
namespace {

// Every key that the window knows.
TEST(KeyHelp, showsCommandsAndKeys) {
  Window window({reportOfPages(2)});
  inForm<QDialog>(window, "F1", [](QDialog& help) {
    const auto& table = *help.findChild<QTableWidget*>("lstKeys");
    std::map<std::string, std::string> rows;
    for (int i = 0; i < table.rowCount(); ++i)
      rows[table.item(i, 0)->text().toStdString()] = table.item(i, 1)->text().toStdString();
    EXPECT_EQ(rows["Ctrl+O"], "Open...");
    EXPECT_EQ(rows["Ctrl++, Ctrl+="], "Zoom in");
    EXPECT_EQ(rows["Shift+F9"], "Starts QorUtlCalc");
    EXPECT_EQ(rows["F1"], "Keys and guide");
  });
}

// Where the guide stands is told once it was asked for, and that nothing opens it.
TEST(KeyHelp, leadsToTheGuide) {
  Window window({reportOfPages(1)});
  const TemporaryDirectory place;
  for (const char* directory : {"usr/lib/m/qorutlview", "usr/share/doc/qorutlview/guide", "bin"})
    std::filesystem::create_directories(place.path(directory));
  const std::string guide = place.write("usr/share/doc/qorutlview/guide/index.html", "");
  const std::string opener =
      place.write("bin/xdg-open", "#!/bin/sh\necho \"$1\" >\"${0%/bin/*}/asked\"\n");
  std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
  const std::pair<std::string, std::string> rows[] = {{place.path("bin"), guide},
                                                      {"/nowhere", guide + " can't be opened."}};
  for (const auto& [path, told] : rows) {
    const Variable programs("PATH", path.c_str());
    const auto askForGuide = [&text = told](QDialog& help) {
      const auto& label = *help.findChild<QLabel*>("lblGuide");
      EXPECT_FALSE(label.isVisible());
      for (auto* button : help.findChildren<QPushButton*>())
        if (button->text() == "User's guide") button->click();
      EXPECT_TRUE(label.isVisible());
      EXPECT_EQ(label.text().toStdString(), text);
      EXPECT_TRUE(label.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    };
    const std::string program = place.path("usr/lib/m/qorutlview/");
    EXPECT_TRUE(bringsUp<QDialog>([&] { showKeyHelp(window.form(), program); }, askForGuide));
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return place.read("asked") == guide + "\n"; }, 30000));
}

}  // namespace
}  // namespace qor::test
