// The page on view as a picture.
#pragma once

namespace qor {

class PageShow;
struct ViewDesk;

// Whether a single page is on view.
bool hasPagePicture(const ViewDesk& desk, const PageShow& pages);

// Copies its picture as large as it is seen, and of 150 dots per inch or more; the sheet, or in a
// wide view all of it. Throws as paintPage, and PictureError.
void mnuCopyPictureClick(const ViewDesk& desk, const PageShow& pages);

}  // namespace qor
