// Texts of the preview window in three languages.
#include "window_model/preview_texts.h"

#include <algorithm>

#include "base/interface_texts.h"
#include "base/text.h"

namespace qor {
namespace {

constexpr PreviewTexts kEnglish = {
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
    .lettersLeftOut = "Code page % leaves out letters: choose another one in the menu, as 28591",
    .codePageOfSet = "The settings have chosen code page %, and not the command line's",
    .textIsUtf8 = "The report is text in UTF-8 and shows wrong letters: convert it to a code page",
    .lineFeedsEndLines = "Lines end with LF alone: they are shown as lines",
    .lineFeedsRunTogether = "Lines end with LF alone and run together: end them with CR LF",
};

constexpr PreviewTexts kRussian = {
    .close = "Закрыть",
    .firstPage = "Первая страница",
    .previousPage = "Предыдущая страница",
    .nextPage = "Следующая страница",
    .lastPage = "Последняя страница",
    .zoom = "Масштаб",
    .zoomIn = "Увеличить",
    .zoomOut = "Уменьшить",
    .actualSize = "Фактический размер",
    .fitWidth = "По ширине",
    .fitPage = "Страница целиком",
    .singlePage = "Одна страница",
    .multiPage = "Несколько страниц",
    .normalView = "Обычный вид",
    .wideView = "Широкий вид",
    .pageList = "Список страниц",
    .unprintable = "Поля и непечатаемая область",
    .fullWindow = "Только страница",
    .showRowLine = "Показать линию строки",
    .showShapeLine = "Показать линию выравнивания",
    .lineProperties = "Свойства линии",
    .settings = "Печать и настройки",
    .mail = "Отправить по почте",
    .convert = "Экспорт",
    .language = "Язык",
    .pageNumber = "Номер страницы",
    .pageCount = "Число страниц",
    .pageArea = "Страницы отчёта",
    .scale = "Масштаб по размеру бумаги",
    .reportMenu = "Отчёт",
    .page = "Страница",
    .of = "из",
    .pageless = "Нет страниц",
    .noPages = "В отчёте нет страниц.",
    .waiting = "Ожидание первой страницы отчёта.",
    .fileChanged = "Файл отчёта изменился после открытия.",
    .fileGone = "Файл отчёта больше не существует.",
    .stateNotRead = "Не читаются настройки окна: ",
    .zoomHeld = "Страница слишком велика для этого масштаба, показано: ",
    .companionMissing = " не запускается.",
    .leavesFullWindow = "F11 вернёт панель инструментов",
    .codePage = "Кодовая страница",
    .outsideStart = "За пределами листа ",
    .line = "строк: %",
    .lines = "строк: %",
    .andAlso = ", ",
    .column = "столбцов: %",
    .columns = "столбцов: %",
    .outsideOne = " (широкий вид)",
    .outsideMany = " (широкий вид)",
    .lettersLeftOut = "Кодовая страница % пропускает буквы: выберите в меню другую, например 28591",
    .codePageOfSet = "Настройки выбрали кодовую страницу %, а не страницу командной строки",
    .textIsUtf8 = "Отчёт записан в UTF-8, буквы показаны неверно: перекодируйте его",
    .lineFeedsEndLines = "Строки оканчиваются одним LF: они показаны как строки",
    .lineFeedsRunTogether = "Строки оканчиваются одним LF и слились: оканчивайте их CR LF",
};

constexpr PreviewTexts kTurkish = {
    .close = "Kapat",
    .firstPage = "İlk sayfa",
    .previousPage = "Önceki sayfa",
    .nextPage = "Sonraki sayfa",
    .lastPage = "Son sayfa",
    .zoom = "Yakınlaştırma",
    .zoomIn = "Yakınlaştır",
    .zoomOut = "Uzaklaştır",
    .actualSize = "Gerçek boyut",
    .fitWidth = "Genişliğe sığdır",
    .fitPage = "Sayfaya sığdır",
    .singlePage = "Tek sayfa",
    .multiPage = "Birden çok sayfa",
    .normalView = "Normal görünüm",
    .wideView = "Geniş görünüm",
    .pageList = "Sayfa listesi",
    .unprintable = "Kenar boşlukları ve yazdırılamayan alan",
    .fullWindow = "Yalnızca sayfa",
    .showRowLine = "Satır çizgisini göster",
    .showShapeLine = "Hizalama çizgisini göster",
    .lineProperties = "Çizgi özellikleri",
    .settings = "Yazdırma ve ayarlar",
    .mail = "E-posta ile gönder",
    .convert = "Dışa aktar",
    .language = "Dil",
    .pageNumber = "Sayfa numarası",
    .pageCount = "Sayfa sayısı",
    .pageArea = "Rapor sayfaları",
    .scale = "Kağıt boyutuna ölçeklendirme",
    .reportMenu = "Rapor",
    .page = "Sayfa",
    .of = "/",
    .pageless = "Sayfa yok",
    .noPages = "Raporda sayfa yok.",
    .waiting = "Raporun ilk sayfası bekleniyor.",
    .fileChanged = "Rapor dosyası açıldıktan sonra değişti.",
    .fileGone = "Rapor dosyası artık yok.",
    .stateNotRead = "Pencere ayarları okunamıyor: ",
    .zoomHeld = "Sayfa bu ölçek için çok büyük, gösterilen ölçek: ",
    .companionMissing = " başlatılamıyor.",
    .leavesFullWindow = "F11 araç çubuğunu yeniden gösterir",
    .codePage = "Kod sayfası",
    .outsideStart = "",
    .line = "% satır",
    .lines = "% satır",
    .andAlso = " ve ",
    .column = "% sütun",
    .columns = "% sütun",
    .outsideOne = " kağıdın dışında: geniş görünüm",
    .outsideMany = " kağıdın dışında: geniş görünüm",
    .lettersLeftOut =
        "% kod sayfası bazı harfleri göstermez: menüden 28591 gibi başka birini seçin",
    .codePageOfSet = "Ayarlar komut satırındakini değil, % kod sayfasını seçti",
    .textIsUtf8 = "Rapor UTF-8 metni, harfleri yanlış görünür: bir kod sayfasına dönüştürün",
    .lineFeedsEndLines = "Satırlar yalnız LF ile bitiyor: satır olarak gösteriliyor",
    .lineFeedsRunTogether = "Satırlar yalnız LF ile bitiyor ve birleşti: CR LF ile bitirin",
};

}  // namespace

const PreviewTexts& previewTexts() {
  switch (GetAnsiCodePage()) {
    case 1251: return kRussian;
    case 1254: return kTurkish;
    default: return kEnglish;
  }
}

std::string withNumber(std::string_view text, std::int64_t number) {
  const std::string_view start = upTo(text, '%');
  std::string result(start);
  result += std::to_string(number);
  return result.append(text.substr(std::min(text.size(), start.size() + 1)));
}

std::string pageOfText(int page, int total) {
  const PreviewTexts& texts = previewTexts();
  if (total == 0) return std::string(texts.pageless);
  std::string text(texts.page);
  text.append(" ").append(std::to_string(page)).append(" ").append(texts.of);
  return text.append(" ").append(std::to_string(total));
}

std::string pageListText(int page) {
  return "   " + std::string(previewTexts().page) + " " + std::to_string(page);
}

}  // namespace qor
