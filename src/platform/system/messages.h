// Telling the user. With no window, notes go to standard output, warnings and errors to standard
// error as one line, so that a server's log tells why a file is missing. A window takes them over.
#pragma once

#include <functional>
#include <string_view>

namespace qor {

enum class MessageKind { information, warning, error };

// One line on standard error and nothing on any window, for the log of a server.
void writeErrorLine(std::string_view text);

// One text on standard output; false where it can't be written.
bool writeOutput(std::string_view text);

void showInformation(std::string_view text);
void showWarning(std::string_view text);
void showError(std::string_view text);  // something was lost: a file, a page

// Takes all messages, UTF-8, in the place of the streams, or of the sink before it, for as long as
// it lives. The last one made goes first.
class MessageSink {
 public:
  using Show = std::function<void(MessageKind, std::string_view)>;

  explicit MessageSink(Show show);
  ~MessageSink();
  MessageSink(const MessageSink&) = delete;
  MessageSink& operator=(const MessageSink&) = delete;

 private:
  Show before_;
};

}  // namespace qor
