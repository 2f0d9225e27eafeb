// English: the language of every code page that no row names.
#include "language/language.h"

namespace qor {
namespace {

constexpr LanguageName kNames[] = {
    {"ru", "Russian"},
    {"en", "English"},
    {"tr", "Turkish"},
};

constexpr std::string_view kOptions[] = {
    "-g (-G)  - don't show graphisc interface",
    "-f (-F)   <file name> - name of file for printing",
    "-p (-P)   <name>      - name of printer device",
    "-i (-I)   <file name> - name of .ini file with printing settings",
    "-caption  <name>      - header of window",
    "-codepage <number>    - codepage of document",
    "-mail     <1 or 2>    - choosing of EMail program for send report",
    "-dd(-DD) - delete data file after print report",
    "-dynamic - dynamic mode of reading data file",
    "-test    - test mode for preview, print button disabled",
    "-e (-E)  <file extension> - File Export (%)",
    "/?, /h, -h - show help window",
};

constexpr ErrorTexts kErrors = {
    "  Error! Can't open document file: ",
    "  Error! Can't read data from document file: ",
    "  Error! INI file not exist: ",
    "  Error! Problem of converting INI-string to param: ",
    "  Error! Can't open DOS charset file: ",
    "  Error! Can't read data from DOS charset file: ",
    "  Error! Not set any printers in system. ",
};

constexpr Language kEnglish = {
    .id = "en",
    .name = "English",
    .ansiCodePage = 1252,
    .dosCodePage = 850,
    .leadsCodePages = true,
    .fontCharset = 0,
    .names = kNames,
    .texts =
        {
            .ApplicationTitle = " QOR Report Viewer",
            .PreviewTitle = " Print preview of document",
            .FileNotExists = " - file not exists.",
            .NoFileSelected = "File for print not selected.",
            .DocumentJobName = "QorUtlView, Document",
            .PageJobName = "QorUtlView, page: ",
        },
    .help =
        {
            .version = "QorUtlView - report viewer. Version ",
            .about = "Shows, prints and exports the reports of the suite.",
            .heading = "    <commands>",
            .options = kOptions,
        },
    .errors = kErrors,
    .dosErrors = kErrors,
    .preview =
        {
            .close = "Close",
            .firstPage = "First page",
            .previousPage = "Previous page",
            .nextPage = "Next page",
            .lastPage = "Last page",
            .zoom = "Zoom",
            .zoomIn = "Zoom in",
            .zoomOut = "Zoom out",
            .actualSize = "Actual size",
            .fitWidth = "Fit width",
            .fitPage = "Fit page",
            .singlePage = "Single page",
            .multiPage = "Several pages",
            .normalView = "Normal view",
            .wideView = "Wide view",
            .pageList = "List of pages",
            .unprintable = "Margins and unprintable area",
            .fullWindow = "Page only",
            .showRowLine = "Show row line",
            .showShapeLine = "Show alignment line",
            .lineProperties = "Line properties",
            .settings = "Print and settings",
            .mail = "Send by mail",
            .convert = "Export",
            .language = "Language",
            .pageNumber = "Page number",
            .pageCount = "Number of pages",
            .pageArea = "Pages of the report",
            .scale = "Scale to paper size",
            .reportMenu = "Report",
            .page = "Page",
            .of = "of",
            .pageless = "No pages",
            .noPages = "The report has no pages.",
            .waiting = "Waiting for the first page of the report.",
            .fileChanged = "The file of the report has changed since it was opened.",
            .fileGone = "The file of the report is gone.",
            .stateNotRead = "The settings of the window can't be read: ",
            .zoomHeld = "The page is too large for this zoom and stands at ",
            .companionMissing = " can't be started.",
            .leavesFullWindow = "F11 shows the toolbar again",
            .codePage = "Code page",
            .outsideStart = "",
            .line = "% line",
            .lines = "% lines",
            .andAlso = " and ",
            .column = "% column",
            .columns = "% columns",
            .outsideOne = " is outside the sheet: wide view",
            .outsideMany = " are outside the sheet: wide view",
            .lettersLeftOut =
                "Code page % leaves out letters: choose another one in the menu, as 28591",
            .codePageOfSet = "The settings have chosen code page %, and not the command line's",
            .textIsUtf8 =
                "The report is text in UTF-8 and shows wrong letters: convert it to a code page",
            .lineFeedsEndLines = "Lines end with LF alone: they are shown as lines",
            .lineFeedsRunTogether = "Lines end with LF alone and run together: end them with CR LF",
        },
};

const LanguageEntry entry(kEnglish);

}  // namespace
}  // namespace qor
