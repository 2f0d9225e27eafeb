// Text goes out as it stands in the report, byte for byte, in the report's own code page.
#include "export/html/html_export.h"

#include <cstdio>

#include "barcode/barcode_picture.h"
#include "base/errors.h"
#include "base/path.h"
#include "base/text.h"
#include "base/units.h"
#include "document/code_page.h"
#include "document/item_visitor.h"
#include "document/side_picture.h"
#include "export/html/html_link.h"
#include "platform/pictures/picture_store.h"
#include "platform/system/directory.h"
#include "platform/system/output_file.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr int kHtmlDpi = 72;

std::int64_t htmlPixels(std::int32_t twips) {
  return pixelsFromTwips(twips, kHtmlDpi);
}

// A text that isn't bold is led by the end of one that is, whether there was one or not: who reads
// these pages by program counts on it.
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
  const int codePage = image.Settings->Page.BaseCodePage;
  html.append("<img src=\"")
      .append(htmlLink(utf8FromCodePage(image.FileName, codePage)))
      .append("\"");
  if (image.Right != 0 || image.Bottom != 0) {
    appendSize(htmlPixels(image.Right) - htmlPixels(image.Left),
               htmlPixels(image.Bottom) - htmlPixels(image.Top), html);
    return;
  }
  image.Load();
  appendSize(image.Bitmap ? image.Bitmap->width() : 0, image.Bitmap ? image.Bitmap->height() : 0,
             html);
}

// The picture's name for a browser: one that starts with a point is put beside the program.
std::string linkOf(const std::string& name) {
  return htmlLink(name.starts_with('.') ? programDirectory() + name.substr(2) : name);
}

void appendBarcode(const VData_BarCode& code, std::string_view stem, std::string& html) {
  const std::string name = barcodePictureName(code, stem, ".jpeg");
  const auto picture = storedPicture(name, LinkSource::refused);
  if (!picture) return;
  html.append("<img src=\"").append(linkOf(name)).append("\"");
  appendSize(picture->width(), picture->height(), html);
}

std::string headOf(const VDoc& doc, const RunOptions& run) {
  const int codePage = doc.Settings.Page.BaseCodePage;
  const auto line = [](const std::string& text) { return text + "\r\n"; };
  std::string html = line("<html>") + line("<head>");
  html += line("<title>" + codePageFromUtf8(run.caption, codePage, Substitute::htmlReference) +
               "</title>");
  html += line(R"(<meta name="Description" content="QOR Report convertor Ver.)" + run.version +
               R"(">)");
  html += line(R"(<meta http-equiv="Content-Type" content="text/html;charset=)" +
               std::string(CodePageName(codePage)) + "\">");
  html += line("</head>") + line("<body>");
  html += line("<basefont face=\"" + std::string(doc.Settings.Font.LogFont.faceName()) + "\">");
  return html + line("<pre>");
}

class HtmlTeller : public ItemVisitor {
 public:
  HtmlTeller(std::string_view stem, std::string& html) : stem_(stem), html_(html) {}

  void font(VData_Font& item) override { appendFont(*item.Font, html_); }
  void text(VData_Text& text) override { html_ += text.Text; }
  void image(VData_Image& image) override {
    if (!stem_.empty()) appendImage(image, html_);
  }
  void barcode(VData_BarCode& code) override {
    if (!stem_.empty()) appendBarcode(code, stem_, html_);
  }

 private:
  std::string_view stem_;
  std::string& html_;
};

}  // namespace

void LineToHtml(const VDocStr& line, std::string_view stem, std::string& html) {
  HtmlTeller teller(stem, html);
  line.tell(teller);
}

ExportResult ExportHtml(ExportTask& task) {
  NewSidePictures pictures;
  OutputFile file(task.target);
  file.write(headOf(task.doc, task.startedWith));
  const std::string stem =
      task.options.SaveHtmlPictures ? sideFileStem(task.startedWith.report) : "";
  std::string html;
  forEachPage(task, [&](const VDocPage& page) {
    if (!stem.empty()) writeBarcodePicturesOf(page, stem);
    forEachLine(page, [&](const VDocStr& line) {
      html.clear();
      LineToHtml(line, stem, html);
      file.write(html.append("\r\n"));
    });
  });
  file.write("</pre>\r\n</body>\r\n</html>\r\n");
  file.commit();
  pictures.keep();
  task.files.push_back(task.target);
  return ExportResult::done;
}

}  // namespace qor
