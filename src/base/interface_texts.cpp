// Interface texts in three languages. Their spellings are the system's own.
#include "base/interface_texts.h"

#include <span>

#include "base/app_options.h"

namespace qor {
namespace {

constexpr InterfaceTexts kEnglish = {
    .ApplicationTitle = " QOR Report Viewer",
    .RussianName = "Russian",
    .EnglishName = "English",
    .TurkishName = "Turkish",
    .PreviewTitle = " Print preview of document",
    .FileNotExists = " - file not exists.",
    .NoFileSelected = "File for print not selected.",
    .DocumentJobName = "QorUtlView, Document",
    .PageJobName = "QorUtlView, page: ",
};

constexpr InterfaceTexts kRussian = {
    .ApplicationTitle = "  QOR Просмотр отчётов",
    .RussianName = "Русский",
    .EnglishName = "Английский",
    .TurkishName = "Турецкий",
    .PreviewTitle = "  Предварительный просмотр документа",
    .FileNotExists = " - файл не существует.",
    .NoFileSelected = "Файл для печати не выбран.",
    .DocumentJobName = "QorUtlView, Документ",
    .PageJobName = "QorUtlView, страница: ",
};

constexpr InterfaceTexts kTurkish = {
    .ApplicationTitle = " QorUtlView - Yazdırma Uygulaması",
    .RussianName = "Rusça",
    .EnglishName = "İngilizce",
    .TurkishName = "Türkçe",
    .PreviewTitle = " Belgenin önizlemesi",
    .FileNotExists = " - Dosya bulunamadı.",
    .NoFileSelected = "Yazdırma işlemi için dosya seçilmemiş.",
    .DocumentJobName = "QorUtlView, Belge",
    .PageJobName = "QorUtlView, Sayfa: ",
};

constexpr std::string_view kEnglishHelp[] = {
    "QorUtlView - report viewer. Version ",
    "    <commands>",
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
    "-e (-E)  <file extension> - File Export (rtf,doc,pdf,bmp,jpeg,gif,ico)",
    "/?, /h, -h - show help window",
};

constexpr std::string_view kRussianHelp[] = {
    "QorUtlView - программа просмотра отчётов. Версия ",
    "    <команды>",
    "-g (-G)  - отключить графический интерфейс",
    "-f (-F)   <имя файла> - имя файла, который выводится на печать",
    "-p (-P)   <имя>       - имя принтера",
    "-i (-I)   <имя файла> - имя файла установок печати",
    "-caption  <имя>       - заголовок окна",
    "-codepage <номер>     - кодовая страница документа",
    "-mail     <1 или 2>   - выбор почтовой программы для отправки отчёта",
    "-dd(-DD) - удалить файл данных после печати отчёта",
    "-dynamic - динамический режим чтения файла данных",
    "-test    - тестовый режим, кнопка \"Печать\" неактивна",
    "/?, /h, -h - показать окно помощи",
};

constexpr std::string_view kTurkishHelp[] = {
    "QorUtlView -  Yazdırma uygulaması. Versiyon ",
    "    <komutlar>",
    "-g (-G)  - grafik arayüzünü gösterme",
    "-f (-F)   <dosya adı>  - basılacak dosyanın adı",
    "-p (-P)   <ad>         - yazıcının adı",
    "-i (-I)   <dosya adı>  - yazdırma ayarlarını içeren .ini dosyasının adı",
    "-caption  <ad>         - pencere başlığı",
    "-codepage <number>     - dosya kod sayfası",
    "-mail     <1 or 2>     - choosing of EMail program for send report",
    "-dd(-DD) - rapor basma işleminden sonra veri dosyasını sil",
    "-dynamic - veri dosyasını dinamik olarak oku",
    "-test    - önizleme için test, yazdırma işlemi yapılamaz",
    "-e (-E)  <dosya uzantısı> - Dosya Export(rtf,doc,pdf,bmp,jpeg,gif,ico)",
    "/?, /h, -h - yardım",
};

constexpr ErrorTexts kEnglishErrors = {
    "  Error! Can't open document file: ",
    "  Error! Can't read data from document file: ",
    "  Error! INI file not exist: ",
    "  Error! Problem of converting INI-string to param: ",
    "  Error! Can't open DOS charset file: ",
    "  Error! Can't read data from DOS charset file: ",
    "  Error! Not set any printers in system. ",
};

constexpr ErrorTexts kRussianErrors = {
    "  Ошибка! Файл для печати не существует: ",
    "  Ошибка! Данные не читаюся из документа: ",
    "  Ошибка! INI файл не существует: ",
    "  Ошибка! Проблема конвертации INI-строки: ",
    "  Ощибка! Не открывается файл DOS установок кодовой страницы: ",
    "  Ошибка! Данные не читаюся из файла DOS установок кодовой страницы: ",
    "  Ошибка! В системе нет установленого принтера. ",
};

// As above, but for a Latin first letter.
constexpr ErrorTexts kRussianDosErrors = {
    "  Oшибка! Файл для печати не существует: ",
    "  Oшибка! Данные не читаюся из документа: ",
    "  Oшибка! INI файл не существует: ",
    "  Oшибка! Проблема конвертации INI-строки: ",
    "  Oщибка! Не открывается файл DOS установок кодовой страницы: ",
    "  Oшибка! Данные не читаюся из файла DOS установок кодовой страницы: ",
    "  Oшибка! В системе нет установленого принтера. ",
};

constexpr ErrorTexts kTurkishErrors = {
    "  Hata! Dosya açılamıyor: ",
    "  Hata! Dosyadan Bilgiler okunamıyor: ",
    "  Hata! INI dosyası mevcut değil: ",
    "  Hata! INI dosyasını dönüştürme işleminde hata oluştu:",
    "  Hata! DOS'ta karakter dosyası açılamıyor: ",
    "  Hata! Dos'taki karakterlerden dosya okunamıyor: ",
    "  Hata! Sistemde tanımlı yazıcı bulunmuyor.",
};

// As above, but for two blanks at ends.
constexpr ErrorTexts kTurkishDosErrors = {
    "  Hata! Dosya açılamıyor: ",
    "  Hata! Dosyadan Bilgiler okunamıyor: ",
    "  Hata! INI dosyası mevcut değil: ",
    "  Hata! INI dosyasını dönüştürme işleminde hata oluştu: ",
    "  Hata! DOS'ta karakter dosyası açılamıyor: ",
    "  Hata! Dos'taki karakterlerden dosya okunamıyor: ",
    "  Hata! Sistemde tanımlı yazıcı bulunmuyor. ",
};

// One language of the interface. `help` starts with the version line and the heading; `about` is
// the line between them.
struct Language {
  const InterfaceTexts& texts;
  std::span<const std::string_view> help;
  std::string_view about;
  int codePage;
  int fontCharset;
  int dosCodePage;
};

constexpr Language kLanguages[] = {
    {kEnglish, kEnglishHelp, "Shows, prints and exports the reports of the suite.", 1252, 0, 850},
    {kRussian, kRussianHelp, "Просмотр, печать и экспорт отчётов системы.", 1251, 204, 866},
    {kTurkish, kTurkishHelp, "Sistem raporlarını gösterir, yazdırır ve dışa aktarır.", 1254, 162,
     857},
};

struct ErrorLanguage {
  const ErrorTexts& texts;
  int codePage;
};

constexpr ErrorLanguage kErrorLanguages[] = {{kEnglishErrors, 1252},
                                             {kRussianErrors, 1251},
                                             {kTurkishErrors, 1254},
                                             {kRussianDosErrors, 866},
                                             {kTurkishDosErrors, 857}};

// The first row is English, for all code pages that no row names.
template <class Row, std::size_t Count>
const Row* rowOf(const Row (&rows)[Count], int codePage) {
  for (const Row& row : rows) {
    if (row.codePage == codePage) return &row;
  }
  return rows;
}

const Language* language = kLanguages;
const ErrorLanguage* errorLanguage = kErrorLanguages;

}  // namespace

void SelectErrorTexts(int codePage) {
  errorLanguage = rowOf(kErrorLanguages, codePage);
}

void SelectInterfaceTexts(int codePage) {
  language = rowOf(kLanguages, codePage);
  AppOptions.FontCharset = language->fontCharset;
  AppOptions.AnsiCodePage = language->codePage;
  AppOptions.DocCodePage = language->dosCodePage;
}

const InterfaceTexts& interfaceTexts() {
  return language->texts;
}
const ErrorTexts& errorTexts() {
  return errorLanguage->texts;
}
int messageCodePage() {
  return errorLanguage->codePage;
}
int GetAnsiCodePage() {
  return AppOptions.AnsiCodePage;
}

std::string HelpText() {
  const auto version = language->help.front();
  const auto heading = language->help[1];
  std::string text = std::string(version) + AppOptions.ProgramVersion + "\n";
  text.append(language->about).append("\n").append(heading);
  for (const std::string_view option : language->help.subspan(2))
    text.append("\n\t").append(option);
  return text;
}

}  // namespace qor
