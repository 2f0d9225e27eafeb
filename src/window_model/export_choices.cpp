// The choices of an export.
#include "window_model/export_choices.h"

#include <array>

#include "base/text.h"
#include "export/export_formats.h"
#include "platform/system/text_encoding.h"
#include "window_model/view_state.h"

namespace qor {
namespace {

constexpr int kCsvType = 2;
constexpr char kUsualSeparator = ';';

// By ImageFormat.
constexpr std::array<bool ViewState::*, kImageFormatCount> kPictureFlags = {
    &ViewState::CheckBMP, &ViewState::CheckJPEG, &ViewState::CheckGIF, &ViewState::CheckICO,
    &ViewState::CheckPNG};

// One at least.
ImageFormatSet storedPictures(const ViewState& state) {
  ImageFormatSet pictures;
  for (std::size_t i = 0; i < kPictureFlags.size(); ++i) pictures.set(i, state.*kPictureFlags[i]);
  if (pictures.none()) pictures.set(kImageJpeg);
  return pictures;
}

ExportOptions optionsOf(const ExportView& view) {
  ExportOptions options;
  options.PaperScale = view.paperScale;
  options.PreviewPageWidth = view.previewPageWidth;
  return options;
}

}  // namespace

void showStored(const ViewState& state, ExportChoices& choices) {
  choices.format = formatWithId(state.ID_of_Convert).id;
  choices.saveHtmlPictures |= state.ImageSaveHTML;
  choices.saveDocPictures |= state.ImageSaveDoc;
  if (state.PreviewType == kNormalView) choices.scaleEnabled = choices.scaleToPaper = false;
  choices.pictures |= storedPictures(state).set(kImageJpeg);
  choices.printToPdf |= state.CheckPdf;
  choices.scaleToPaper |= state.CheckScale;
  choices.sheetType = 0;
  choices.tabSeparates = true;
  choices.separatorsEnabled = choices.separatorEnabled = false;
}

void storeChoices(const ExportChoices& choices, ViewState& state) {
  state.ID_of_Convert = choices.format;
  state.ImageSaveHTML = choices.saveHtmlPictures;
  state.ImageSaveDoc = choices.saveDocPictures;
  for (std::size_t i = 0; i < kPictureFlags.size(); ++i)
    state.*kPictureFlags[i] = choices.pictures.test(i);
  state.CheckPdf = choices.printToPdf;
  state.CheckScale = choices.scaleToPaper;
}

void chooseSheetType(int sheetType, ExportChoices& choices) {
  choices.sheetType = sheetType;
  choices.separatorsEnabled = sheetType == kCsvType;
}

void chooseTab(bool tabSeparates, ExportChoices& choices) {
  choices.tabSeparates = tabSeparates;
  choices.separatorEnabled = !tabSeparates;
  if (tabSeparates) choices.separator.clear();
}

char csvSeparator(const ExportChoices& choices, int codePage) {
  if (choices.tabSeparates) return '\t';
  const std::string_view character = firstCharacters(trimmed(choices.separator), 1);
  const std::string bytes = codePageFromUtf8(character, codePage, Substitute::questionMark);
  const bool isSubstitute = bytes == "?" && character != "?";
  return bytes.size() == 1 && !isSubstitute ? bytes.front() : kUsualSeparator;
}

ExportOptions dialogOptions(const ExportChoices& choices, const ExportView& view, int codePage) {
  ExportOptions options = optionsOf(view);
  options.UseNewPageChar = choices.useNewPageChar;
  options.UseEofChar = choices.useEofChar;
  options.SaveHtmlPictures = choices.saveHtmlPictures;
  options.SaveDocPictures = choices.saveDocPictures;
  options.PrintToPdfPrinter = choices.printToPdf;
  options.ScaleToPaper = choices.scaleToPaper && choices.scaleEnabled;
  options.ImageFormats = choices.pictures;
  options.PagePerSheet = choices.pagePerSheet;
  options.CsvSeparator = csvSeparator(choices, codePage);
  return options;
}

ExportOptions mailOptions(const ViewState& state, const ExportView& view) {
  ExportOptions options = optionsOf(view);
  options.UseNewPageChar = true;
  options.UseEofChar = true;
  options.SaveHtmlPictures = state.ImageSaveHTML;
  options.SaveDocPictures = state.ImageSaveDoc;
  options.PrintToPdfPrinter = state.CheckPdf;
  options.ScaleToPaper = state.CheckScale && state.PreviewType == kWideView;
  options.ImageFormats = storedPictures(state);
  options.PagePerSheet = true;
  options.CsvSeparator = kUsualSeparator;
  return options;
}

}  // namespace qor
