// The captions of the export dialog. They are Turkish, and its hints English, whatever the
// language: users know the dialog so.
#pragma once

#include <array>
#include <string_view>

namespace qor {

struct ExportCaption {
  std::string_view control;
  std::string_view caption;
  std::string_view hint{};
};

inline constexpr auto kExportCaptions = std::to_array<ExportCaption>({
    {"TfrmConvert", "Dosya Export"},
    {"pFileName", "Dosya Adı"},
    {"cmdFileSafeAs", "..."},
    {"chkUseNewPageChar", "Sayfa sonu karakteri kullan", "Use New Page Characters"},
    {"chkUseEOFChar", "Dosya sonu karakteri (EOF) kullan", "Use EOF (End Of File) Character"},
    {"chkSaveHtmlPictures", "Resimleri Kaydet", "Save Pictures"},
    {"chkSaveAsMHT", "Farklı Kaydet  *.mht (arşiv)", "Save As *.mht (archive)"},
    {"chkSaveRtfPictures", "Resimleri Kaydet", "Save Pictures"},
    {"chkSaveDocPictures", "Resimleri Kaydet", "Save Pictures"},
    {"chkPrinToPdf", "Microsoft Print to PDF"},
    {"chkScaleFlag", "Kağıt boyutuna ölçeklendirme"},
    {"chbBMP", "BMP"},
    {"chbJPEG", "JPEG"},
    {"chbGIF", "GIF"},
    {"chbICO", "ICO"},
    {"chbPNG", "PNG"},
    {"lblFileType", "Dosya Tipi"},
    {"chbPageSeparator", "Her sayfa ayrı tabloya"},
    {"GroupBox3", "Ayırıcılar"},
    {"cbSekme", "Sekme"},
    {"lblDiger", "Diğer"},
    {"chkPreview", "Dosya Önizleme"},
    {"chkEmail", "E-Posta Gönder"},
    {"cmdOk", "Tamam"},
    {"cmdCancel", "Vazgeç"},
});

// The items of cbXLSFileType.
inline constexpr std::array<std::string_view, 3> kSheetTypeItems = {
    "1-Excel (XLS)", "2-Excel (XLSX)", "3-Excel (CSV)"};

}  // namespace qor
