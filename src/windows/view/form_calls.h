// Calls the other forms, and brings the view back behind them.
#pragma once

#include <QObject>

#include "windows/view/view_commands.h"

namespace qor {

class PageNotesWatch;
class PageShow;
class PageZoom;
class PaperScale;
struct PrintOutcome;
struct ViewDesk;

class FormCalls : public QObject {
  Q_OBJECT

 public:
  // A form that isn't offered is null in `offered`.
  FormCalls(ViewDesk& desk, ViewCommands offered, const PageZoom& zoom, PageShow& pages,
            PageNotesWatch& notes, PaperScale& scale);

  const ViewCommands& offered() const { return offered_; }

  // They do nothing where nobody offers the form, or there is no document. They throw what the form
  // throws; the page is then still to be shown again.
  void cmdSettings_Click();
  void cmdView_ConvertClick();
  void cmdView_MailClick();

 signals:
  void pagesIndexed();  // anew; the page is to be shown
  void stateChanged();
  void told(const QString& message);  // in passing
  void failed(const QString& reason);
  void viewKept();  // what was on view still is: what is told of it is to be told again

 private:
  void callExport(const std::function<void(const ExportCall&)>& form);
  std::int32_t percentInForce() const;
  void openPrinter(bool scaled, VDoc& doc);
  PrintOutcome printChosenPages(VDoc& doc);
  void tell(const PrintOutcome& outcome, int copies);

  ViewDesk& desk_;
  const PageZoom& zoom_;
  ViewCommands offered_;
  PageShow& pages_;
  PageNotesWatch& notes_;
  PaperScale& scale_;
};

}  // namespace qor
