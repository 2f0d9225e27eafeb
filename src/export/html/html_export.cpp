// Reports as one flowing page of HTML. Text goes out as it stands in the report, byte for byte, in
// the report's own code page.
#include <cstdio>
#include <string>

#include "barcode/barcode_picture.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
#include "base/text.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/loaded_page.h"
#include "export/exporters.h"
#include "platform/pictures/picture.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/output_file.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr int kBoldWeight = 700;
constexpr int kHtmlDpi = 72;
constexpr std::uint64_t kMaxBarcodePicture = 64U << 20;

std::int64_t htmlPixels(std::int32_t twips) {
  return std::int64_t{twips} * kHtmlDpi / kTwipsPerInch;
}

void appendFont(const FontState& font, std::string& html) {
  char color[8];
  std::snprintf(color, sizeof color, "%02X%02X%02X", redOf(font.Color), greenOf(font.Color),
                blueOf(font.Color));
  html.append("<basefont color=\"#").append(color).append("\">");
  html += font.LogFont.Weight < kBoldWeight ? "</b>" : "<b>";
}

void appendSize(std::int64_t width, std::int64_t height, std::string& html) {
  html.append(" width=\"").append(std::to_string(width));
  html.append("\" height=\"").append(std::to_string(height)).append("\">");
}

void appendImage(VData_Image& image, std::string& html) {
  html.append("<img src=\"").append(image.FileName).append("\"");
  if (image.Right != 0 || image.Bottom != 0) {
    appendSize(htmlPixels(image.Right) - htmlPixels(image.Left),
               htmlPixels(image.Bottom) - htmlPixels(image.Top), html);
    return;
  }
  image.Load();
  appendSize(image.Bitmap ? image.Bitmap->width : 0, image.Bitmap ? image.Bitmap->height : 0, html);
}

// The picture's name for a browser: one that starts with a point is put beside the program.
std::string linkOf(const std::string& name, int codePage) {
  const std::string link = name.starts_with('.') ? programDirectory() + name.substr(2) : name;
  return codePageFromUtf8(link, codePage, Substitute::htmlReference);
}

void appendBarcode(const VData_BarCode& code, std::string& html) {
  const std::string name = barcodePictureName(code, ".jpeg");
  const auto file = readWholeFile(name, kMaxBarcodePicture);
  const auto picture = file ? decodePicture(*file) : std::nullopt;
  if (!picture) return;
  html.append("<img src=\"").append(linkOf(name, code.Settings->Page.BaseCodePage)).append("\"");
  appendSize(picture->width, picture->height, html);
}

std::string headOf(const VDoc& doc) {
  const int codePage = doc.Settings.Page.BaseCodePage;
  const auto line = [](std::string text) { return text + "\r\n"; };
  std::string html = line("<html>") + line("<head>");
  html += line("<title>" +
               codePageFromUtf8(AppOptions.WindowCaption, codePage, Substitute::htmlReference) +
               "</title>");
  html += line("<meta name=\"Description\" content=\"QOR Report convertor Ver." +
               AppOptions.ProgramVersion + "\">");
  html += line("<meta http-equiv=\"Content-Type\" content=\"text/html;charset=" +
               std::string(CodePageName(codePage)) + "\">");
  html += line("</head>") + line("<body>");
  html += line("<basefont face=\"" + std::string(doc.Settings.Font.LogFont.faceName()) + "\">");
  return html + line("<pre>");
}

}  // namespace

void LineToHtml(const VDocStr& line, bool savePictures, std::string& html) {
  for (VData& item : line.items()) {
    if (const auto* font = dynamic_cast<const VData_Font*>(&item)) appendFont(font->Font, html);
    if (const auto* text = dynamic_cast<const VData_Text*>(&item)) html += text->Text;
    if (auto* image = dynamic_cast<VData_Image*>(&item); image && savePictures) {
      appendImage(*image, html);
    }
    if (const auto* code = dynamic_cast<const VData_BarCode*>(&item); code && savePictures) {
      appendBarcode(*code, html);
    }
  }
}

void ExportHtml(VDoc& doc, const ExportOptions& options) {
  OutputFile file(options.TargetName);
  file.write(headOf(doc));
  std::string html;
  for (std::int32_t number = 1; number <= doc.PageCount; ++number) {
    const LoadedPage page(doc, number, options.PageMode);
    if (options.SaveHtmlPictures) {
      writeBarcodePicturesOf(*page, sideFileStem(AppOptions.FileName));
    }
    for (const VDocStr& line : page->lines()) {
      html.clear();
      LineToHtml(line, options.SaveHtmlPictures, html);
      file.write(html.append("\r\n"));
    }
  }
  file.write("</pre>\r\n</body>\r\n</html>\r\n");
  file.commit();
}

}  // namespace qor
