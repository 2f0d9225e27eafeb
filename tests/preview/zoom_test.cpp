// Zooms of the window. Pages are A4 on the printer that makes files: 793 by 1122 pixels at 100
// percent, with a gap of 10 around the sheet.
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QStyleOptionComboBox>
#include <regex>

#include <gtest/gtest.h>

#include "preview/model/view_state.h"
#include "preview/model/zoom_list.h"
#include "preview/window.h"

namespace qor::test {
namespace {

TEST(PreviewZoom, hasEveryZoomOfItsList) {
  struct Row {
    int width;  // of the sheet and the gaps
    int height;
  };
  const std::vector<Row> rows = {{4068, 5712}, {3254, 4569}, {2440, 3427}, {1627, 2284},
                                 {1220, 1713}, {1016, 1427}, {813, 1142},  {609, 855},
                                 {406, 571},   {202, 284},   {97, 136},    {39, 56}};
  Window window({reportOfPages(1)});
  auto& list = window.control<QComboBox>("cmbZoom");
  EXPECT_EQ(list.currentIndex(), -1) << "nothing is stored yet";
  EXPECT_EQ(window.view().size(), QSize(813, 1142)) << "which counts as 100 percent";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    list.setCurrentIndex(static_cast<int>(i));
    window.form().cmbZoomChange();
    EXPECT_EQ(window.view().size(), QSize(rows[i].width, rows[i].height)) << kZoomList[i].text;
  }
  const QSize area = window.area().maximumViewportSize();
  window.form().mnuZoomListClick(13);
  EXPECT_NEAR(window.view().height(), area.height(), 25) << "AutoH";
  window.form().mnuZoomListClick(12);
  EXPECT_NEAR(window.view().width(), area.width(), 25) << "AutoW";
}

TEST(PreviewZoom, scalesTheSheetUnderThePage) {
  Window window({reportOfPages(1), Window::zoomed(kNaturalZoomEntry)});
  window.control<QLineEdit>("txtZoom").setText("200");
  window.form().ShowPageScale();
  EXPECT_EQ(window.view().size(), QSize(436, 601));
  window.form().cmbZoomChange();
  EXPECT_EQ(window.view().size(), QSize(813, 1142)) << "the next zoom ends it";
}

TEST(PreviewZoom, stepsInTheListOrFromWhatIsSeen) {
  struct Row {
    const char* what;
    int start;
    std::function<void(Window&)> step;
    int entry;
  };
  const auto key = [](Qt::Key pressed, Qt::KeyboardModifiers modifiers) {
    return [=](Window& window) { window.press(pressed, modifiers); };
  };
  const auto click = [](const char* name) { return [=](Window& window) { window.click(name); }; };
  const auto wheel = [](std::initializer_list<int> deltas) {
    return [steps = std::vector<int>(deltas)](Window& window) {
      for (const int delta : steps) window.wheel(delta, Qt::ControlModifier);
    };
  };
  const auto menu = [](int place) {
    return [=](Window& window) { window.control<QMenu>("mnuZoom").actions()[place]->trigger(); };
  };
  const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
  // The area is about 1000 by 710 pixels: AutoW gives some 122 percent, AutoH 63.
  const std::vector<Row> rows = {
      {"numeric plus", 6, key(Qt::Key_Plus, Qt::KeypadModifier), 5},
      {"numeric minus", 6, key(Qt::Key_Minus, Qt::KeypadModifier), 7},
      {"plus", 6, key(Qt::Key_Plus, Qt::NoModifier), 5},
      {"plus at the start of the list", 0, key(Qt::Key_Plus, Qt::NoModifier), 0},
      {"minus leads to AutoW", 11, key(Qt::Key_Minus, Qt::NoModifier), 12},
      {"plus from AutoH", 13, key(Qt::Key_Plus, Qt::NoModifier), 12},
      {"Ctrl+plus", 6, key(Qt::Key_Plus, ctrl), 5},
      {"Ctrl+=", 6, key(Qt::Key_Equal, ctrl), 5},
      {"= alone is nothing", 6, key(Qt::Key_Equal, Qt::NoModifier), 6},
      {"Ctrl+minus", 6, key(Qt::Key_Minus, ctrl), 7},
      {"Ctrl+minus at the smallest", 11, key(Qt::Key_Minus, ctrl), 11},
      {"Ctrl+plus at the largest", 0, key(Qt::Key_Plus, ctrl), 0},
      {"larger from AutoW", 12, click("cmdView_ZoomIn"), 5},
      {"smaller from AutoW", 12, click("cmdView_ZoomOut"), 6},
      {"larger from AutoH", 13, click("cmdView_ZoomIn"), 7},
      {"smaller from AutoH", 13, click("cmdView_ZoomOut"), 8},
      {"larger where nothing is stored", -1, click("cmdView_ZoomIn"), 5},
      {"wheel up", 6, wheel({120}), 5},
      {"half a step of the wheel", 6, wheel({-60}), 6},
      {"two halves", 6, wheel({-60, -60}), 7},
      // The entries of the menu from 100 percent down pick the next larger one.
      {"menu, 150%", 6, menu(4), 4},
      {"menu, 100%", 6, menu(5), 5},
      {"menu, 75%", 6, menu(6), 6},
      {"menu, AutoW", 6, menu(11), 11},
      {"menu, AutoH", 6, menu(12), 12},
  };
  for (const Row& row : rows) {
    Window window({reportOfPages(1), Window::zoomed(row.start)});
    row.step(window);
    EXPECT_EQ(window.control<QComboBox>("cmbZoom").currentIndex(), row.entry) << row.what;
  }
}

TEST(PreviewZoom, keepsThePlaceThatIsLookedAt) {
  struct Row {
    const char* what;
    std::function<void(Window&, QPoint)> step;
    bool atPointer;
  };
  const std::vector<Row> rows = {
      {"wheel", [](Window& w, QPoint at) { w.wheel(120, Qt::ControlModifier, at); }, true},
      {"wheel down", [](Window& w, QPoint at) { w.wheel(-120, Qt::ControlModifier, at); }, true},
      {"key", [](Window& w, QPoint) { w.press(Qt::Key_Plus, Qt::ControlModifier); }, false},
      {"button", [](Window& w, QPoint) { w.click("cmdView_ZoomOut"); }, false},
  };
  for (const int kind : {kNormalView, kWideView}) {
    for (const Row& row : rows) {
      // 300 percent: larger than the area in both directions, before and after.
      Window window({reportOfPages(1), {{"ZoomID", 2}, {"PreviewType", kind}}});
      QScrollBar& across = *window.area().horizontalScrollBar();
      across.setValue(700);
      window.area().verticalScrollBar()->setValue(900);
      const QPoint pointer(620, 130);
      const QPoint at = row.atPointer ? pointer : window.area().viewport()->rect().center();
      // The place of the page at 100 percent.
      const auto place = [&](double zoom) {
        return QPointF(window.view().mapFrom(window.area().viewport(), at)) * 100 / zoom;
      };
      const QPointF before = place(300);
      row.step(window, pointer);
      const double zoom = window.view().width() / (kind == kWideView ? 793.7 : 813.7) * 100;
      ASSERT_GT(std::abs(zoom - 300), 90) << row.what;
      EXPECT_NEAR(place(zoom).x(), before.x(), 2) << row.what;
      EXPECT_NEAR(place(zoom).y(), before.y(), 2) << row.what;
    }
  }
}

// The fit to the width leaves 2 percent, which are more than the gaps below 100 percent only.
TEST(PreviewZoom, hasNoBarBelowAPageThatFits) {
  struct Row {
    int width;  // of the area beside the bar at the right
    int view;
    bool bar;
  };
  for (const Row& row : {Row{800, 795, false}, Row{795, 795, false}, Row{1000, 1008, true}}) {
    Window window({reportOfPages(1), Window::zoomed(12)});
    const int bar = window.area().verticalScrollBar()->width();
    window.form().resize(row.width + bar, 800);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.view().width(), row.view);
    EXPECT_EQ(window.area().horizontalScrollBar()->isVisible(), row.bar) << row.width;
    EXPECT_EQ(window.area().horizontalScrollBar()->maximum(), std::max(0, row.view - row.width));
  }
  Window window({reportOfPages(1), Window::zoomed(6)});
  EXPECT_EQ(window.area().verticalScrollBar()->maximum(), 1142 - window.area().viewport()->height())
      << "the sheet and a gap at each side";
}

std::string barsOf(Window& window) {
  return std::string(window.area().verticalScrollBar()->isVisible() ? "right " : "") +
         (window.area().horizontalScrollBar()->isVisible() ? "bottom" : "");
}

TEST(PreviewZoom, fitsAndStaysFitted) {
  struct Row {
    const char* what;
    int kind;
    Qt::Key key;
    const char* bars;
    const char* stored;
  };
  const std::vector<Row> rows = {
      {"width", kNormalView, Qt::Key_1, "right ", "12"},
      {"page", kNormalView, Qt::Key_2, "", "13"},
      {"width of a wide report", kWideView, Qt::Key_1, "", "6"},
      {"all of a wide report", kWideView, Qt::Key_2, "", "6"},
      {"actual size", kNormalView, Qt::Key_0, "right ", "6"},
  };
  for (const Row& row : rows) {
    Window window({std::string(300, 'w') + "\r\n", {{"ZoomID", 3}, {"PreviewType", row.kind}}});
    window.press(row.key, Qt::ControlModifier);
    for (const QSize size : {QSize(1000, 800), QSize(1200, 700), QSize(830, 900)}) {
      window.form().resize(size);
      QCoreApplication::processEvents();
      EXPECT_EQ(barsOf(window), row.bars) << row.what << " " << size.width();
      const QSize seen = window.area().viewport()->size();
      const QSize view = window.view().size();
      if (row.kind == kNormalView && row.key != Qt::Key_0) {
        const int gaps = view.width() - window.doc().Settings.Scr.paper_width;
        EXPECT_NEAR(window.view().x() * 2, seen.width() - view.width() + gaps, 1)
            << row.what << ": the sheet stands in the middle";
      }
      // One percent more has no room: it takes at most 24 pixels of 300 letters.
      if (row.key == Qt::Key_0) {
        EXPECT_EQ(view, QSize(813, 1142));
      } else if (row.key == Qt::Key_1) {
        EXPECT_LT(seen.width() - view.width(), 26) << row.what;
      } else {
        EXPECT_LT(std::min(seen.width() - view.width(), seen.height() - view.height()), 26)
            << row.what;
      }
    }
    EXPECT_EQ(window.close()["ZoomID"], row.stored) << row.what;
  }
}

TEST(PreviewZoom, isToldInItsBox) {
  struct Row {
    std::map<std::string, int> stored;
    std::string shown;  // an expression
  };
  const std::vector<Row> rows = {
      {{}, "100%"},
      {{{"ZoomID", 9}}, "25%"},
      {{{"ZoomID", 12}}, "AutoW \\([0-9]+%\\)"},
      {{{"ZoomID", 13}, {"MultipageView", 1}}, "AutoH \\([0-9]+%\\)"},
      {{{"ZoomID", 13}, {"PreviewType", kWideView}}, "AutoH \\(100%\\)"},
  };
  for (const Row& row : rows) {
    Window window({reportOfPages(5), row.stored});
    const auto& box = window.control<QComboBox>("cmbZoom");
    const QString shown = box.currentIndex() < 0 ? box.placeholderText() : box.currentText();
    EXPECT_TRUE(std::regex_match(shown.toStdString(), std::regex(row.shown)))
        << shown.toStdString();
  }
  // 98 percent of 793 pixels and two gaps of 9 are 795.
  Window window({reportOfPages(1), Window::zoomed(12)});
  const auto& box = window.control<QComboBox>("cmbZoom");
  window.form().resize(800 + window.area().verticalScrollBar()->width(), 800);
  QCoreApplication::processEvents();
  EXPECT_EQ(box.currentText(), "AutoW (98%)");
  window.press(Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(box.currentText(), "AutoW (98%)") << "99 percent would take 803";
  window.press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(box.currentText(), "100%");
  EXPECT_EQ(box.itemText(12), "AutoW");
  QStyleOptionComboBox option;
  option.initFrom(&box);
  const QRect field =
      box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
  EXPECT_GE(field.width(), box.fontMetrics().horizontalAdvance("AutoW (100%)"));
}

}  // namespace
}  // namespace qor::test
