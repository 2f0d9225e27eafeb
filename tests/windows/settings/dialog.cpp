// Driving the dialog, with queues made up.
#include "windows/settings/dialog.h"

#include <QAbstractItemView>
#include <QBitmap>
#include <QTabWidget>

namespace qor::test {
namespace {

const Media kA4 = {"iso_a4_210x297mm", {21000, 29700}, {}};
const Media kA5 = {"iso_a5_148x210mm", {14800, 21000}, {}};
const Media kLetter = {"na_letter_8.5x11in", {21590, 27940}, {}};
const Media kLabel = {"om_label_62x100mm", {6200, 10000}, {}};

// The last of the media is the usual one.
Queue queueOf(const QueueName& id, const std::vector<Media>& media = {},
              const std::vector<std::string>& sources = {}, bool color = false) {
  Queue queue;
  queue.id = id;
  queue.media = media;
  if (!media.empty()) queue.defaultMedia = media.back().name;
  queue.sources = sources;
  queue.color = color;
  return queue;
}

}  // namespace

// "far" prints in black, on a paper that isn't A4, and has one of its own.
DialogPrinters::DialogPrinters()
    : MadeUpPrinters({queueOf({"near", "Near driver", "usb:1"}, {kLetter, kA5, kA4},
                              {"auto", "tray-1", "tray-2"}, true),
                      queueOf({"silent", "Silent driver", ""}),
                      queueOf({"far", "Far driver", "usb:2"}, {kLetter, kLabel, kA5}, {"tray-3"})},
                     "near") {
  setSilent(true);
}

Window::Start withSettings(const std::string& report, const Settings& stored) {
  Window::Start start{report, stored};
  start.commands.settings = settingsForm();
  return start;
}

QRect inkOf(const QImage& image) {
  const QImage ink = image.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor);
  return QRegion(QBitmap::fromImage(ink)).boundingRect();
}

void Dialog::in(Window& window, const std::function<void(Dialog&)>& steps) {
  inForm<TfrmSets>(window, "F4", [&steps](TfrmSets& form) {
    Dialog dialog(form);
    steps(dialog);
  });
}

std::string Dialog::text(const std::string& names) {
  std::string all;
  for (const std::string& name : wordsOf(names)) {
    const QWidget& widget = control(name);
    QVariant shown = widget.property("text");
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) shown = box->currentText();
    if (const auto* list = qobject_cast<const QListView*>(&widget))
      shown = list->currentIndex().data();
    all += shown.toString().toStdString() + "|";
  }
  all.pop_back();
  return all;
}

void Dialog::goTo(int tab) {
  control<QTabWidget>("Pages_Sets").setCurrentIndex(tab);
  Window::settle();
}

void Dialog::key(const std::string& keys) {
  QWidget* focus = form_.focusWidget();
  QTest::keySequence(focus == nullptr ? &form_ : focus, QString::fromStdString(keys));
  Window::settle();
}

void Dialog::use(const std::string& steps) {
  for (const auto& [name, value] : rowsOf(steps)) {
    QWidget& widget = control(name);
    const auto& tabs = control<QTabWidget>("Pages_Sets");
    for (int i = 0; i < tabs.count(); ++i)
      if (tabs.widget(i)->isAncestorOf(&widget)) goTo(i);
    ASSERT_TRUE(widget.isVisible() && widget.isEnabled()) << name;
    const QString text = QString::fromStdString(value);
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
      QModelIndexList found;
      const auto comes = [&found, &text, &model = *view->model()] {
        found = model.match(model.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        return !found.isEmpty();
      };
      ASSERT_TRUE(QTest::qWaitFor(comes)) << value;
      view->scrollTo(found[0]);
      QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(found[0]).center());
    } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
      ASSERT_GE(box->findText(text), 0) << value;
      QTest::keyClick(box, Qt::Key_Home);
      while (box->currentText() != text) QTest::keyClick(box, Qt::Key_Down);
    } else if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
      typeInto(*edit, value);
    } else {  // a check box or a radio button on its mark
      QTest::mouseClick(&widget, Qt::LeftButton, {}, {10, widget.height() / 2});
    }
    Window::settle();
  }
}

void Dialog::choosePrinter(const std::string& name) {
  use("treePrinters " + name);
  ASSERT_TRUE(QTest::qWaitFor([this] { return control("cmdOk").isEnabled(); }));
}

std::string Dialog::answering(const std::string& steps, const std::function<void(QWidget&)>& by) {
  std::string text;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    QWidget* over = QApplication::activeModalWidget();
    if (over == nullptr || over == &form_) return;
    timer.stop();
    const auto* box = qobject_cast<QMessageBox*>(over);
    text = box == nullptr ? "dialog" : box->text().toStdString();
    by(*over);
  });
  timer.start(0);
  use(steps);
  return text;
}

}  // namespace qor::test
