// Pictures of items beside the report, for exporters that can't draw.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace qor {

class Canvas;
struct Rect;

// Draws a bitmap of the rectangle's size, with the dots of a device of this resolution, and writes
// it as JPEG under each name. Logical (0, 0) is the bitmap's corner. Without a dot there is none.
// The first file that the directory refuses is told in one line. Throws PictureError for a picture
// that can't be made.
void saveSidePicture(const Rect& rect, int dpi, const std::vector<std::string>& names,
                     const std::function<void(Canvas&)>& draw);

// For the next report: what its directory refuses is told again.
void tellRefusedPicturesAgain();

// Takes back the pictures that were made in its life and weren't there before, unless they are
// kept: an export that comes to nothing leaves nothing.
class NewSidePictures {
 public:
  NewSidePictures();
  ~NewSidePictures();
  NewSidePictures(const NewSidePictures&) = delete;
  NewSidePictures& operator=(const NewSidePictures&) = delete;

  void keep() { names_.clear(); }

  // Called for each picture before it is written.
  static void note(const std::string& name);

 private:
  NewSidePictures* before_;
  std::vector<std::string> names_;
};

// While one lives, pictures that the directory refuses are not told: whoever only looks at a report
// has no use for them.
class UntoldSidePictures {
 public:
  UntoldSidePictures();
  ~UntoldSidePictures();
  UntoldSidePictures(const UntoldSidePictures&) = delete;
  UntoldSidePictures& operator=(const UntoldSidePictures&) = delete;

 private:
  bool before_;
};

}  // namespace qor
