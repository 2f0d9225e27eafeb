#include "windows/view/window.h"

#include <QKeySequence>
#include <QWheelEvent>
#include <QWindow>

#include "platform/system/messages.h"
#include "settings/printers.h"

namespace qor::test {

std::string reportOfPages(int pages) {
  return reportWithTextAt(std::vector<int>(static_cast<std::size_t>(pages)));
}

std::string reportWithTextAt(const std::vector<int>& lines) {
  std::string report;
  for (const int empty : lines) {
    report += (QByteArray(" \r\n").repeated(empty) + "______________________________ Text\r\n\f")
                  .toStdString();
  }
  return report;
}

int firstInk(const QImage& picture, const QRect& part) {
  const QRect inside = part.intersected(picture.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      const QRgb dot = picture.pixel(x, y);
      if (std::max({qRed(dot), qGreen(dot), qBlue(dot)}) < 180) return y - part.top();
    }
  }
  return -1;
}

QRect boxOf(const QImage& picture, const QColor& color) {
  QRect box;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) == color.rgb()) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

Window::Window(const Start& start) {
  prepare(start);
  doc_.Settings.Page.BaseCodePage = AppOptions.DocCodePage;
  InitPrinters();
  doc_.SelectPrinter({});
  start.dynamic ? doc_.ScanFirstPage() : static_cast<void>(doc_.ScanPages(false));
  settings_ = std::make_unique<QtUserSettings>();
  form_ = std::make_unique<TfrmView>(*settings_, start.commands);
  messages_.emplace(
      [this](MessageKind kind, std::string_view text) { form_->showMessage(kind, qtText(text)); });
  form_->SetDocument(&doc_, doc_.findPage(1));
  form_->resize(1000, 800);
  if (start.beforeShown) start.beforeShown(*form_);
  form_->show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(form_.get()));
}

void Window::prepare(const Start& start) {
  const std::filesystem::path file = settingsFile();
  std::filesystem::remove(file);
  QSettings stored = userSettings();
  stored.clear();
  for (const auto& [name, value] : start.stored) stored.setValue(qtText(name), value);
  stored.sync();
  if (!start.brokenSettings.empty()) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << start.brokenSettings;
  }
  SelectErrorTexts(1252);
  SelectInterfaceTexts(1252);
  AppOptions.FileName = directory_.write("report.txt", start.report);
  AppOptions.DynamicMode = start.dynamic;
  AppOptions.DocCodePage = 1251;
}

Settings Window::close() {
  if (form_) {
    form_->close();
    form_->SetDocument(nullptr, nullptr);
    messages_.reset();
    form_.reset();
  }
  Settings values;
  const QSettings stored = userSettings();
  for (const QString& key : stored.allKeys()) {
    const QVariant value = stored.value(key);
    values[key.toStdString()] = value == "true" ? 1 : value.toInt();
  }
  return values;
}

void Window::resize(const QSize& size) {
  form_->resize(size);
  settle();
}

int Window::press(const std::string& what, int times) {
  const QString name = qtText(what);
  if (auto* control = form_->findChild<QWidget*>(name)) return click(*control);
  auto* command = form_->findChild<QAction*>(name);
  if (command != nullptr) command->trigger();
  const QKeyCombination keys = QKeySequence::fromString(name)[0];
  for (int i = 0; command == nullptr && i < times; ++i) {
    QTest::keyClick(form_->windowHandle(), keys.key(), keys.keyboardModifiers());
    settle();
  }
  return page();
}

int Window::click(QWidget& on, QPoint place, Qt::MouseButton button) {
  QTest::mouseClick(&on, button, {}, place);
  settle();
  return page();
}

int Window::wheel(int delta, Qt::KeyboardModifiers modifiers, QPoint place) {
  QWidget* seen = area().viewport();
  QWheelEvent event(place, seen->mapToGlobal(place), {}, {0, delta}, Qt::NoButton, modifiers,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(seen, &event);
  return page();
}

std::map<int, PageImage*> Window::smallPages() {
  std::map<int, PageImage*> pages;
  for (PageImage* image : pageControl().findChildren<PageImage*>()) {
    if (image->isVisible()) pages[image->property("tag").toInt()] = image;
  }
  return pages;
}

int Window::firstInk() {
  const VSetScr& sheet = doc_.Settings.Scr;
  const QRect printable(QPoint(sheet.print_left, sheet.print_top),
                        QPoint(sheet.print_right, sheet.print_bottom));
  // Without the outline of the sheet, where it is printed upon.
  return test::firstInk(picture("page_control"), printable.adjusted(1, 1, -2, -2));
}

}  // namespace qor::test
