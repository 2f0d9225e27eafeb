// A job on its way to a CUPS scheduler, sent while it is made.
#pragma once

#include <string>

#include "platform/cups/ipp.h"

namespace qor {

class CupsJob : public PrintJob {
 public:
  // Throws PrintError where no scheduler answers.
  explicit CupsJob(std::string queue);
  ~CupsJob() override;
  CupsJob(const CupsJob&) = delete;
  CupsJob& operator=(const CupsJob&) = delete;

  // Asks the scheduler for a job, before anything is written. Throws PrintError.
  void start(const JobTicket& ticket);

  void write(std::string_view bytes) override;
  void finish() override;

 private:
  void create(const JobTicket& ticket);
  void startDocument(const JobTicket& ticket);
  void flush();
  [[noreturn]] void fail() const;

  std::string queue_;
  Connection connection_;
  int number_ = 0;
  bool finished_ = false;
  std::string buffer_;
};

}  // namespace qor
