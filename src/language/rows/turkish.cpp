// Turkish.
#include "language/language.h"

namespace qor {
namespace {

constexpr LanguageName kNames[] = {
    {"ru", "Rusça"},
    {"en", "İngilizce"},
    {"tr", "Türkçe"},
};

constexpr std::string_view kOptions[] = {
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
    "-e (-E)  <dosya uzantısı> - Dosya Export(%)",
    "/?, /h, -h - yardım",
};

constexpr ErrorTexts kErrors = {
    "  Hata! Dosya açılamıyor: ",
    "  Hata! Dosyadan Bilgiler okunamıyor: ",
    "  Hata! INI dosyası mevcut değil: ",
    "  Hata! INI dosyasını dönüştürme işleminde hata oluştu:",
    "  Hata! DOS'ta karakter dosyası açılamıyor: ",
    "  Hata! Dos'taki karakterlerden dosya okunamıyor: ",
    "  Hata! Sistemde tanımlı yazıcı bulunmuyor.",
};

// As above, but for two blanks at ends.
constexpr ErrorTexts kDosErrors = {
    "  Hata! Dosya açılamıyor: ",
    "  Hata! Dosyadan Bilgiler okunamıyor: ",
    "  Hata! INI dosyası mevcut değil: ",
    "  Hata! INI dosyasını dönüştürme işleminde hata oluştu: ",
    "  Hata! DOS'ta karakter dosyası açılamıyor: ",
    "  Hata! Dos'taki karakterlerden dosya okunamıyor: ",
    "  Hata! Sistemde tanımlı yazıcı bulunmuyor. ",
};

constexpr Language kTurkish = {
    .id = "tr",
    .name = "Türkçe",
    .ansiCodePage = 1254,
    .dosCodePage = 857,
    .leadsCodePages = true,
    .fontCharset = 162,
    .names = kNames,
    .texts =
        {
            .ApplicationTitle = " QorUtlView - Yazdırma Uygulaması",
            .PreviewTitle = " Belgenin önizlemesi",
            .FileNotExists = " - Dosya bulunamadı.",
            .NoFileSelected = "Yazdırma işlemi için dosya seçilmemiş.",
            .DocumentJobName = "QorUtlView, Belge",
            .PageJobName = "QorUtlView, Sayfa: ",
        },
    .help =
        {
            .version = "QorUtlView -  Yazdırma uygulaması. Versiyon ",
            .about = "Sistem raporlarını gösterir, yazdırır ve dışa aktarır.",
            .heading = "    <komutlar>",
            .options = kOptions,
        },
    .errors = kErrors,
    .dosErrors = kDosErrors,
    .preview =
        {
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
            .textIsUtf8 =
                "Rapor UTF-8 metni, harfleri yanlış görünür: bir kod sayfasına dönüştürün",
            .lineFeedsEndLines = "Satırlar yalnız LF ile bitiyor: satır olarak gösteriliyor",
            .lineFeedsRunTogether = "Satırlar yalnız LF ile bitiyor ve birleşti: CR LF ile bitirin",
        },
};

const LanguageEntry entry(kTurkish);

}  // namespace
}  // namespace qor
