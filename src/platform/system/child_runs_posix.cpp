// Running children side by side, on POSIX.
#include <algorithm>
#include <utility>

#include <poll.h>

#include "base/errors.h"
#include "platform/system/child_runs.h"

namespace qor {
namespace {

// Between the word to a child that it is to end and its end by force.
constexpr std::chrono::milliseconds kGrace{1000};

}  // namespace

ChildRuns::ChildRuns(ChildWork work, const ChildLimits& limits)
    : work_(std::move(work)), limits_(limits) {
}

ChildRuns::~ChildRuns() {
  for (Child& child : busy_) child.end = Clock::now();
  while (!busy_.empty()) wait(kGrace);
}

// One that has done this kind and took the piece; none where there is none. Others make room.
ChildRuns::Children ChildRuns::free(std::size_t id, std::string_view kind) {
  Children taken;
  while (!idle_.empty()) {
    const auto fit = std::ranges::find(idle_, kind, &Child::kind);
    taken.splice(taken.begin(), idle_, fit == idle_.end() ? idle_.begin() : fit);
    if (fit != idle_.end() && taken.front().process.give(id)) break;
    taken.clear();
    if (fit == idle_.end()) break;
  }
  return taken;
}

// A new one; none where there is no room beside those at work.
ChildRuns::Children ChildRuns::fork(std::size_t id, std::string_view kind) const {
  Children forked;
  try {
    forked.emplace_back(work_, limits_.bytes, kind);
    forked.front().process.give(id);
  } catch (const SystemError&) {
    if (busy_.empty()) throw;
  }
  return forked;
}

bool ChildRuns::start(std::size_t id, std::string_view kind) {
  Children started = free(id, kind);
  if (started.empty()) started = fork(id, kind);
  if (started.empty()) return false;
  started.front().id = id;
  started.front().end =
      limits_.time.count() == 0 ? Clock::time_point::max() : Clock::now() + limits_.time;
  busy_.splice(busy_.end(), started);
  return true;
}

std::chrono::milliseconds ChildRuns::untilNextEnd(std::chrono::milliseconds longest) const {
  const auto now = Clock::now();
  for (const Child& child : busy_) {
    if (child.end - now >= longest) continue;
    longest = std::chrono::ceil<std::chrono::milliseconds>(
        std::max(child.end - now, Clock::duration::zero()));
  }
  return longest;
}

// First by a word, so that it takes away what it has not finished.
void ChildRuns::endLate() {
  const auto now = Clock::now();
  for (Child& child : busy_) {
    if (child.end > now) continue;
    if (child.late)
      child.process.kill();
    else
      child.process.terminate();
    child.late = true;
    child.end = now + kGrace;
  }
}

ChildEnd ChildRuns::endOf(Children::iterator child, ChildProcess::State state) {
  ChildEnd end = {child->id, {}, {}};
  Children ended;
  ended.splice(ended.begin(), busy_, child);
  if (state == ChildProcess::State::ended) {
    const std::string trouble = child->process.trouble();
    end.trouble = child->late ? "took too long and was ended" : trouble;
    return end;
  }
  ChildAnswer answer = child->process.takeAnswer();
  end.answer = std::move(answer.text);
  if (answer.canGoOn && !child->late) idle_.splice(idle_.end(), ended);
  return end;
}

std::vector<ChildEnd> ChildRuns::wait(std::chrono::milliseconds longest) {
  std::vector<pollfd> answers;
  answers.reserve(busy_.size());
  for (const Child& child : busy_) answers.push_back({child.process.answers(), POLLIN, 0});
  ::poll(answers.data(), answers.size(), static_cast<int>(untilNextEnd(longest).count()));
  endLate();
  std::vector<ChildEnd> ends;
  auto child = busy_.begin();
  for (const pollfd& each : answers) {
    const auto here = child++;
    if (each.revents == 0) continue;
    const ChildProcess::State state = here->process.look();
    if (state != ChildProcess::State::working) ends.push_back(endOf(here, state));
  }
  return ends;
}

}  // namespace qor
