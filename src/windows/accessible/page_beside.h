// The text of a page that is read for itself, beside those that the window draws and lets go of:
// that of the current one while several are on view.
#pragma once

#include <cstdint>
#include <memory>

#include "render/text_map.h"

namespace qor {

class VDoc;

class PageBeside {
 public:
  PageBeside();
  ~PageBeside();

  // Null where the page can't be read. It is read once, until it is dropped or another one is asked
  // for.
  const TextMap* map(VDoc& doc, std::int32_t number);
  void drop();

 private:
  void read(VDoc& doc, std::int32_t number);

  std::unique_ptr<VDocPage> page_;
  std::unique_ptr<TextMap> map_;
};

}  // namespace qor
