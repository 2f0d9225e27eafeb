// Tells those who hear the window which hit a search has come to: its counter and its line. It
// waits for a moment, so that neither each letter of what is typed nor each slice of a search is
// told.
#pragma once

#include <QObject>
#include <optional>

#include "search/search_hits.h"

class QTimer;

namespace qor {

class FindPanel;
class SpokenNotice;
class SpokenPage;

class HitAnnouncer : public QObject {
  Q_OBJECT

 public:
  HitAnnouncer(FindPanel& find, SpokenPage& page, SpokenNotice& notice);

 private:
  void tellSoon();
  void tell();
  QString hitLine();

  FindPanel& find_;
  SpokenPage& page_;
  SpokenNotice& notice_;
  QTimer* soon_;
  std::optional<HitPlace> told_;
};

}  // namespace qor
