#include "preview/window.h"

#include <QFile>
#include <QSettings>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "base/interface_texts.h"
#include "platform/messages.h"
#include "platform/qt/qt_text.h"
#include "settings/printers.h"

namespace qor::test {

std::string reportOfPages(int pages) {
  std::string report;
  for (int number = 1; number <= pages; ++number)
    report += "This is page " + std::to_string(number) + ".\r\n\f";
  return report;
}

std::string reportWithTextAt(std::initializer_list<int> lines) {
  std::string report;
  for (const int empty : lines) {
    for (int i = 0; i < empty; ++i) report += " \r\n";
    report += "______________________________ Text\r\n\f";
  }
  return report;
}

int firstInk(const QImage& picture, const QRect& part) {
  const QRect inside = part.intersected(picture.rect());
  const auto isBlack = [](QRgb dot) {
    return std::max({qRed(dot), qGreen(dot), qBlue(dot)}) < 180;
  };
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      if (isBlack(picture.pixel(x, y))) return y - part.top();
    }
  }
  return -1;
}

Window::Window(const Start& start) {
  prepare(start);
  doc_.Settings.Page.BaseCodePage = AppOptions.DocCodePage;
  InitPrinters();
  doc_.SelectPrinter();
  if (start.dynamic) {
    doc_.ScanFirstPage();
  } else {
    doc_.ScanPages(false);
  }
  settings_ = std::make_unique<QtUserSettings>();
  form_ = std::make_unique<TfrmView>(*settings_, start.commands);
  messages_.emplace(
      [this](MessageKind kind, std::string_view text) { form_->showMessage(kind, qtText(text)); });
  form_->SetDocument(&doc_, doc_.findPage(1));
  form_->resize(start.size);
  if (start.beforeShown) start.beforeShown(*form_);
  form_->show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(form_.get()));
}

void Window::prepare(const Start& start) {
  QSettings stored(QSettings::IniFormat, QSettings::UserScope, "QOR", "QorUtlView");
  std::filesystem::remove(stored.fileName().toStdString());
  stored.clear();
  for (const auto& [name, value] : start.stored) stored.setValue(qtText(name), value);
  stored.sync();
  if (!start.settingsFile.empty()) {
    const std::filesystem::path file = stored.fileName().toStdString();
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << start.settingsFile;
  }
  SelectErrorTexts(1252);
  SelectInterfaceTexts(1252);
  AppOptions.FileName = directory_.write("report.txt", start.report);
  AppOptions.DynamicMode = start.dynamic;
  AppOptions.DocCodePage = 1251;
  AppOptions.OwnerWindow = 0;
  AppOptions.PrinterName.clear();
  AppOptions.WindowCaption.clear();
}

Window::~Window() {
  close();
}

std::map<std::string, std::string> Window::close() {
  if (form_) {
    form_->close();
    form_->SetDocument(nullptr, nullptr);
    messages_.reset();
    form_.reset();
  }
  std::map<std::string, std::string> values;
  const QSettings stored(QSettings::IniFormat, QSettings::UserScope, "QOR", "QorUtlView");
  for (const QString& key : stored.allKeys())
    values[key.toStdString()] = stored.value(key).toString().toStdString();
  return values;
}

void Window::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(form_->windowHandle(), key, modifiers);
  QCoreApplication::processEvents();
}

void Window::click(const char* name) {
  QTest::mouseClick(&control(name), Qt::LeftButton);
  QCoreApplication::processEvents();
}

void Window::wheel(int delta, Qt::KeyboardModifiers modifiers, QPoint place) {
  QWidget* seen = area().viewport();
  QWheelEvent event(place, seen->mapToGlobal(place), {}, {0, delta}, Qt::NoButton, modifiers,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(seen, &event);
}

std::string Window::status(const char* panel) {
  return control<QLabel>(panel).text().toStdString();
}

int Window::firstInk() {
  const VSetScr& sheet = doc_.Settings.Scr;
  const QRect printable(QPoint(sheet.print_left, sheet.print_top),
                        QPoint(sheet.print_right, sheet.print_bottom));
  // Without the outline of the sheet, where it is printed upon.
  return test::firstInk(picture("page_control"), printable.adjusted(1, 1, -2, -2));
}

int Window::scrolled() {
  return area().verticalScrollBar()->value();
}

}  // namespace qor::test
