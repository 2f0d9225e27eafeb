// Telling of exports.
#include "bulk/bulk_log.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/errors.h"
#include "bulk/json_text.h"
#include "platform/system/messages.h"
#include "platform/system/process.h"

namespace qor {
namespace {

constexpr std::chrono::milliseconds kBetweenLooks{100};

const char* nameOf(BulkResult result) {
  switch (result) {
    case BulkResult::done: return "done";
    case BulkResult::skipped: return "skipped";
    default: return "failed";
  }
}

std::string jsonLine(const PlannedExport& planned, const BulkAnswer& answer,
                     std::chrono::milliseconds time) {
  const std::pair<const char*, std::string> members[] = {
      {"report", jsonText(planned.report)},        {"target", jsonText(planned.target)},
      {"files", std::to_string(answer.files)},     {"pages", std::to_string(answer.pages)},
      {"bytes", std::to_string(answer.bytes)},     {"milliseconds", std::to_string(time.count())},
      {"result", jsonText(nameOf(answer.result))}, {"reason", jsonText(answer.reason)}};
  std::string line;
  for (const auto& [name, value] : members)
    line += (line.empty() ? "{" : ",") + jsonText(name) + ":" + value;
  return line + "}";
}

std::string barOf(std::size_t done, std::size_t all) {
  constexpr std::size_t kWidth = 24;
  const std::size_t full = kWidth * done / std::max<std::size_t>(all, 1);
  return "[" + std::string(full, '#') + std::string(kWidth - full, '.') + "]";
}

std::string clockText(double seconds) {
  const auto whole = static_cast<long>(seconds);
  const std::string rest = std::to_string(whole % 60);
  return std::to_string(whole / 60) + (rest.size() < 2 ? ":0" : ":") + rest;
}

}  // namespace

BulkLog::BulkLog(const BulkOptions& options, std::size_t reports)
    : json_(options.json), progress_(options.progress && errorIsTerminal()), reports_(reports) {
  if (progress_) showProgress();
}

BulkLog::~BulkLog() {
  clearProgress();
}

void BulkLog::tell(const PlannedExport& planned, const BulkAnswer& answer,
                   std::chrono::milliseconds time) {
  ++ended_;
  failed_ += answer.result == BulkResult::failed ? 1 : 0;
  if (!answer.reason.empty() || answer.result == BulkResult::failed) {
    clearProgress();
    const std::string reason = answer.reason.empty() ? "it can't be exported" : answer.reason;
    writeErrorLine(planned.report + ": " + reason);
  }
  if (json_ && !writeOutput(jsonLine(planned, answer, time)))
    throw FileError("the standard output can't be written", ErrorKind::cannotWrite);
  if (progress_) showProgress();
}

void BulkLog::showProgress() {
  const auto now = Clock::now();
  if (now - shown_ < kBetweenLooks && ended_ < reports_) return;
  shown_ = now;
  const double seconds = std::chrono::duration<double>(now - start_).count();
  const double rate = static_cast<double>(ended_) / std::max(seconds, 0.001);
  const double left = static_cast<double>(reports_ - ended_) / std::max(rate, 0.001);
  std::fprintf(stderr, "\r\033[K%s %zu of %zu, %zu failed, %.1f reports/s, %s left",
               barOf(ended_, reports_).c_str(), ended_, reports_, failed_, rate,
               ended_ == 0 ? "-:--" : clockText(left).c_str());
  std::fflush(stderr);
  is_shown_ = true;
}

void BulkLog::clearProgress() {
  if (!is_shown_) return;
  std::fputs("\r\033[K", stderr);
  std::fflush(stderr);
  is_shown_ = false;
}

}  // namespace qor
