// What was made of files, by their paths, until the files change.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/system/file_stamp.h"

namespace qor {

template <class Value>
class FileCache {
 public:
  // The value of the file at the path: `make` is called where it isn't known or the file has
  // changed. Of a file that can't be looked at nothing is kept.
  template <class Make>
  Value valueOf(const std::string& path, Make make) {
    const auto stamp = fileStamp(path);
    const auto known = known_.find(path);
    if (stamp && known != known_.end() && known->second.stamp == *stamp) return known->second.value;
    Value value = make();
    if (stamp) known_.insert_or_assign(path, Known{*stamp, value});
    return value;
  }

  void clear() { known_.clear(); }

 private:
  struct Known {
    FileStamp stamp;
    Value value;
  };

  std::map<std::string, Known> known_;
};

}  // namespace qor
