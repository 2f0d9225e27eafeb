// The picture files that a report names. All who show or embed one come to it this way.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

class StoredPicture;

// The path of a picture by its name as the report has it, in the document's code page: a name with
// "\" is tried with "/" where it is not found. Nothing for names without the extension of a
// picture, nor outside AppOptions.PicturePlaces.
std::optional<std::string> picturePath(std::string_view fileName, int codePage);

// The bytes of its file; nothing where it can't be read.
std::optional<std::string> readPictureFile(std::string_view fileName, int codePage);

// The picture; null where there is none that can be shown.
std::shared_ptr<const StoredPicture> pictureNamed(std::string_view fileName, int codePage);

}  // namespace qor
