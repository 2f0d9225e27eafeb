// The resource file of the PDF engine: families that are taken for the faces of reports, and code
// pages under other names.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace qor {

// A text file of sections. A section is its name on a line of its own, entries "name=value", and a
// line with a point alone; "%" starts a comment. The case of names doesn't count.
class PdfResources {
 public:
  PdfResources() = default;

  // Throws FileError.
  explicit PdfResources(const std::string& path);

  // "FontOutline": the family for a face; the face itself where there is no entry.
  std::string familyOf(const std::string& face) const;

  // "Encoding": the code page for an encoding's name; without an entry the number behind "cp", or
  // 0.
  int codePageOf(const std::string& encoding) const;

 private:
  using Section = std::map<std::string, std::string>;

  const std::string* find(const std::string& section, const std::string& name) const;

  std::map<std::string, Section> sections_;
};

}  // namespace qor
