// The information dictionary, the same as XMP, and the colour space that the page's red, green and
// blue are meant in (ISO 19005-2, 6.2 and 6.6).
#include "platform/pdf/pdf_metadata.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "base/text.h"
#include "platform/system/text_encoding.h"
#include "platform/system/utc_time.h"

namespace qor {
namespace {

std::string timeText(std::time_t time, const char* format) {
  const std::tm parts = utcParts(time);
  std::array<char, 40> text{};
  return {text.data(), std::strftime(text.data(), text.size(), format, &parts)};
}

// Archives take no longer strings than 32,767 bytes.
constexpr std::size_t kLongestText = 8000;

// What both forms can hold: titles come from command lines, in whatever bytes.
std::string printable(std::string_view utf8) {
  std::string text;
  for (const char32_t c : codePointsFromUtf8(utf8).substr(0, kLongestText)) {
    const bool isText = c >= U' ' && c != 0xFFFE && c != 0xFFFF;
    appendUtf8(text, isText ? c : U' ');
  }
  return text;
}

std::string levelOf(const PdfInformation& information) {
  if (!information.archived) return "";
  return std::string("<pdfaid:part>2</pdfaid:part>\n<pdfaid:conformance>") +
         (information.tagged ? "U" : "B") + "</pdfaid:conformance>\n";
}

std::string xmpOf(const PdfInformation& information) {
  const std::string created = timeText(information.created, "%Y-%m-%dT%H:%M:%SZ");
  return "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
         "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
         "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
         "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
         " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\""
         " xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\""
         " xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">\n"
         "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">" +
         escapedMarkup(printable(information.title)) +
         "</rdf:li></rdf:Alt></dc:title>\n<xmp:CreateDate>" + created +
         "</xmp:CreateDate>\n<pdf:Producer>" + escapedMarkup(printable(information.producer)) +
         "</pdf:Producer>\n" + levelOf(information) +
         "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>\n";
}

// Numbers of a colour profile: the highest byte first, and reals as 16.16 bits.
void putNumber(std::string& bytes, std::uint32_t value, int size = 4) {
  for (int shift = (size - 1) * 8; shift >= 0; shift -= 8) {
    bytes += static_cast<char>(value >> shift & 0xFF);
  }
}

void putReal(std::string& bytes, double value) {
  putNumber(bytes, static_cast<std::uint32_t>(std::lround(value * 65536)));
}

std::string colorTag(const std::array<double, 3>& xyz) {
  std::string tag = "XYZ ";
  putNumber(tag, 0);
  for (const double part : xyz) putReal(tag, part);
  return tag;
}

// The curve of sRGB as the 'para' type 3: (ax + b)^g from d on, cx below (IEC 61966-2-1).
std::string curveTag() {
  std::string tag = "para";
  putNumber(tag, 0);
  putNumber(tag, 3, 2);
  putNumber(tag, 0, 2);
  for (const double part : {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045}) putReal(tag, part);
  return tag;
}

std::string textTag(std::string_view text) {
  std::string tag = "mluc";
  putNumber(tag, 0);
  putNumber(tag, 1);
  putNumber(tag, 12);
  tag += "enUS";
  putNumber(tag, static_cast<std::uint32_t>(text.size() * 2));
  putNumber(tag, 28);
  for (const char c : text) putNumber(tag, static_cast<unsigned char>(c), 2);
  tag.resize((tag.size() + 3) / 4 * 4);
  return tag;
}

// How sRGB's white, D65, was adapted to D50: by Bradford's matrix.
std::string adaptationTag() {
  std::string tag = "sf32";
  putNumber(tag, 0);
  for (const double part : {1.047882, 0.022919, -0.050217, 0.029587, 0.990479, -0.017059, -0.009232,
                            0.015076, 0.751678})
    putReal(tag, part);
  return tag;
}

constexpr std::size_t kProfileHeader = 128;
constexpr std::array<double, 3> kWhite = {0.9642, 1, 0.8249};  // D50

std::string profileHeader(std::size_t size) {
  std::string header;
  putNumber(header, static_cast<std::uint32_t>(size));
  putNumber(header, 0);
  putNumber(header, 0x04200000);
  header += "mntrRGB XYZ ";
  for (const std::uint32_t part : {2024U, 1U, 1U, 0U, 0U, 0U}) putNumber(header, part, 2);
  header += "acsp";
  header.resize(68);
  for (const double part : kWhite) putReal(header, part);
  header.resize(kProfileHeader);
  return header;
}

struct ProfileTag {
  std::string name;
  std::string data;
};

// sRGB as a display profile of version 4 (ICC.1): primaries adapted to D50.
std::array<ProfileTag, 10> profileTags() {
  return {{{"desc", textTag("sRGB")},
           {"cprt", textTag("No copyright, use freely")},
           {"chad", adaptationTag()},
           {"wtpt", colorTag(kWhite)},
           {"rXYZ", colorTag({0.4360, 0.2225, 0.0139})},
           {"gXYZ", colorTag({0.3851, 0.7169, 0.0971})},
           {"bXYZ", colorTag({0.1431, 0.0606, 0.7139})},
           {"rTRC", curveTag()},
           {"gTRC", curveTag()},
           {"bTRC", curveTag()}}};
}

std::string colorProfile() {
  const auto tags = profileTags();
  std::string table;
  std::string data;
  putNumber(table, tags.size());
  const std::size_t start = kProfileHeader + 4 + tags.size() * 12;
  for (const ProfileTag& tag : tags) {
    table += tag.name;
    putNumber(table, static_cast<std::uint32_t>(start + data.size()));
    putNumber(table, static_cast<std::uint32_t>(tag.data.size()));
    data += tag.data;
  }
  return profileHeader(start + data.size()) + table + data;
}

}  // namespace

PdfId writeInformation(PdfFile& file, const PdfInformation& information) {
  return file.addObject("<</Title" + pdfText(printable(information.title)) + "/Producer" +
                        pdfText(printable(information.producer)) + "/CreationDate(" +
                        timeText(information.created, "D:%Y%m%d%H%M%SZ") + ")>>");
}

std::string writeMetadata(PdfFile& file, const PdfInformation& information) {
  const PdfId metadata = file.reserve();
  // Plain, so that programs that don't read the format find it.
  file.writePlainStream(metadata, "/Type/Metadata/Subtype/XML", xmpOf(information));
  const PdfId profile = file.addStream("/N 3", colorProfile());
  std::string entries = "/Metadata " + pdfReference(metadata) +
                        "/OutputIntents[<</Type/OutputIntent/S/GTS_PDFA1"
                        "/OutputConditionIdentifier(sRGB)/Info(sRGB)/DestOutputProfile " +
                        pdfReference(profile) + ">>]";
  if (!information.language.empty()) entries += "/Lang" + pdfText(information.language);
  return entries;
}

}  // namespace qor
