// Lines that come and go.
#include "windows/alignment/alignment_lines.h"

#include <QEvent>
#include <utility>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "windows/alignment/tfrm_row_sets.h"

namespace qor {

AlignmentLines::AlignmentLines(QWidget* area, LineFile file, Page page)
    : area_(area), file_(std::move(file)), page_(std::move(page)) {
  area_->installEventFilter(this);
}

AlignmentLines::~AlignmentLines() = default;

// --- Coming and going ----------------------------------------------------------------------------

void AlignmentLines::FormShow() {
  const std::string ini = file_.read();
  for (const LineKind kind : kLineKinds) {
    const LineLook look = lookIn(ini, kind);
    if (look.showFlag == 1) show(kind, look);
  }
}

void AlignmentLines::FormClose() const {
  if (!isAnyShown()) return;
  const std::string before = file_.read();
  std::string ini = before;
  forEachLine([&ini](AlignmentLine& line) {
    if (line.look().lastTop != lookIn(ini, line.kind()).lastTop)
      ini = withTop(ini, line.kind(), line.look().lastTop);
  });
  if (ini != before) file_.write(ini);
}

void AlignmentLines::show(LineKind kind, const LineLook& look) {
  AlignmentLine* line = nullptr;
  if (kind == LineKind::row) {
    line = new TRowControl(look, page_, area_);
  } else {
    line = new TShapeRow(look, page_, area_);
  }
  lines_[static_cast<std::size_t>(kind)] = line;
  connect(line, &AlignmentLine::moved, this, [this, line] { tellPlace(*line, true); });
  connect(line, &AlignmentLine::propertiesWanted, this, [this, line] { showProperties(*line); });
  connect(line, &AlignmentLine::deleteWanted, this, [this, kind] { toggle(kind); });
  connect(line, &AlignmentLine::leaveWanted, this, &AlignmentLines::left);
  rebuild();
  line->show();
}

// One that was dragged and taken away comes back where its file says.
void AlignmentLines::toggle(LineKind kind) {
  if (AlignmentLine* shown = line(kind)) {
    const bool hadFocus = shown->window()->focusWidget() == shown;
    lines_[static_cast<std::size_t>(kind)] = nullptr;
    shown->hide();
    shown->deleteLater();
    if (hadFocus) emit left();
  } else {
    show(kind, lookIn(file_.read(), kind));
  }
  emit toggled();
}

void AlignmentLines::forEachLine(const std::function<void(AlignmentLine&)>& use) const {
  for (const auto& line : lines_) {
    if (line != nullptr) use(*line);
  }
}

// --- Places --------------------------------------------------------------------------------------

void AlignmentLines::putEach(const Place& place) {
  const LineRoom room = page_.room();
  forEachLine([&](AlignmentLine& line) {
    line.putTo(place(line, room));
    tellPlace(line, false);
  });
}

int AlignmentLines::walk(int way) {
  const LineRoom room = page_.room();
  int turn = 0;
  forEachLine([&](AlignmentLine& line) {
    if (turn == 0) turn = lineStep(room, line.y(), line.height(), way).turn;
  });
  if (turn == 0)
    putEach([way](const AlignmentLine& line, const LineRoom&) { return line.y() + way; });
  return turn;
}

void AlignmentLines::toTop() {
  int above = 0;
  putEach([&above](const AlignmentLine& line, const LineRoom& room) {
    return room.pageTop + 1 + std::exchange(above, line.height());
  });
}

void AlignmentLines::toBottom() {
  int below = 0;
  putEach([&below](const AlignmentLine& line, const LineRoom& room) {
    return lowestTop(room, line.height()) - std::exchange(below, line.height());
  });
}

void AlignmentLines::nearToTop() {
  putEach([](const AlignmentLine& line, const LineRoom& room) {
    return isNearTop(room, line.y(), line.height()) ? room.pageTop + 1 : line.y();
  });
}

void AlignmentLines::rebuild() {
  putEach([](const AlignmentLine& line, const LineRoom& room) {
    return topInSight(room, line.y(), line.height());
  });
}

bool AlignmentLines::eventFilter(QObject* watched, QEvent* event) {
  if (watched == area_ && event->type() == QEvent::Resize) rebuild();
  return QObject::eventFilter(watched, event);
}

// The place counts from the sheet's top, where a sheet is seen.
void AlignmentLines::tellPlace(AlignmentLine& line, bool byUser) {
  const AlignmentTexts& texts = alignmentTexts();
  const QString name = qtText(line.kind() == LineKind::row ? texts.rowLine : texts.shapeLine);
  line.setAccessibleName(name);
  const auto millimetres = page_.millimetresAt(line.y());
  const QString hint =
      millimetres ? qtText(lineHint(name.toStdString(), *millimetres)).trimmed() : name;
  line.setToolTip(hint);
  line.setAccessibleDescription(hint);
  if (byUser) page_.tell(hint);
}

// --- Properties ----------------------------------------------------------------------------------

void AlignmentLines::mnuPropertiesClick() {
  const AlignmentLine* shape = line(LineKind::shape);
  const AlignmentLine* shown = shape != nullptr ? shape : line(LineKind::row);
  if (shown != nullptr) showProperties(*shown);
}

void AlignmentLines::showProperties(const AlignmentLine& line) {
  TfrmRowSets form(
      line.look(), [this](const LineLook& look) { apply(look); }, area_->window());
  form.exec();
}

// All lines that are there get the same look, and each keeps its own place.
void AlignmentLines::apply(const LineLook& look) {
  std::string ini = file_.read();
  forEachLine([&](AlignmentLine& line) {
    LineLook stored = look;
    stored.lastTop = line.y();
    ini = withLook(ini, line.kind(), stored);
  });
  file_.write(ini);
  forEachLine([&look](AlignmentLine& line) { line.setLook(look); });
}

}  // namespace qor
