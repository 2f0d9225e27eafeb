// The attributes of a tag: keys, values, and what each key does to what it is read into.
#pragma once

#include <string_view>

namespace qor {

struct FontState;
class VData_BarCode;
class VData_Shape;
class VData_Image;
class VData_Text;

// Each reads the whole text of a tag's attributes. Unknown keys and bare words are skipped; a value
// that can't be read loses its attribute and nothing else.
void readAttributes(std::string_view attributes, FontState& font);
void readAttributes(std::string_view attributes, VData_Text& item);
void readAttributes(std::string_view attributes, VData_Shape& item);
void readAttributes(std::string_view attributes, VData_Image& item);
void readAttributes(std::string_view attributes, VData_BarCode& item);

}  // namespace qor
