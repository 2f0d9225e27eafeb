// A job that becomes a file.
#pragma once

#include <string>

#include "platform/print/print_queues.h"
#include "platform/system/output_file.h"

namespace qor {

class FileJob : public PrintJob {
 public:
  // Throws FileError.
  explicit FileJob(const std::string& target, LinkTarget link = LinkTarget::written)
      : target_(target), file_(target, link) {}

  std::string file() const override { return target_; }
  void write(std::string_view bytes) override { file_.write(bytes); }
  void finish() override { file_.commit(); }

 private:
  std::string target_;
  OutputFile file_;
};

}  // namespace qor
