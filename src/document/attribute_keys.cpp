// The keys of each tag, as tables: what a key is called, how its value reads, where it goes.
#include <algorithm>
#include <span>
#include <string>

#include "base/units.h"
#include "document/attribute_reader.h"
#include "document/attributes.h"
#include "document/vdata.h"

namespace qor {
namespace {

template <class Target>
struct AttributeKey {
  std::string_view name;
  void (*apply)(Target&, const AttributeValue&);
};

// The usual key: reads a value and stores it in one field.
template <auto Field, auto Read, class Target>
void store(Target& target, const AttributeValue& value) {
  if (const auto read = Read(value)) target.*Field = *read;
}

template <class Target>
void ignore(Target&, const AttributeValue&) {
}

// --- Fonts ---------------------------------------------------------------------------------------

void setRotation(FontState& font, std::int32_t tenthsOfDegree) {
  font.LogFont.Escapement = tenthsOfDegree;
  font.LogFont.Orientation = tenthsOfDegree;
}

void rotateByQuarters(FontState& font, const AttributeValue& value) {
  if (const auto quarters = wholeNumber(value)) {
    setRotation(font, static_cast<std::int32_t>(std::int64_t{*quarters} * 900 % 3600));
  }
}

void rotateByTenths(FontState& font, const AttributeValue& value) {
  if (const auto tenths = wholeNumber(value)) setRotation(font, *tenths);
}

void setFace(FontState& font, const AttributeValue& value) {
  font.LogFont.setFaceName(value.text);
}

void setWeight(FontState& font, const AttributeValue& value) {
  store<&LogFont::Weight, wholeNumber>(font.LogFont, value);
}

void setBold(FontState& font, const AttributeValue& value) {
  if (const auto number = wholeNumber(value))
    font.LogFont.Weight = *number == 1 ? kBoldWeight : kPlainWeight;
}

template <auto Field>
void setStyle(FontState& font, const AttributeValue& value) {
  store<Field, byteNumber>(font.LogFont, value);
}

// Keys that texts and the captions of barcodes share.
constexpr AttributeKey<FontState> kFontStyleKeys[] = {
    {"fp", setWeight},
    {"fb", setBold},
    {"fi", setStyle<&LogFont::Italic>},
    {"fu", setStyle<&LogFont::Underline>},
    {"fso", setStyle<&LogFont::StrikeOut>},
    {"fc", store<&FontState::Color, colorByName>},
    {"fc16", store<&FontState::Color, colorByIndex>},
    {"fc256", store<&FontState::Color, colorOf256>},
    {"fcRGB", store<&FontState::Color, colorByRgb>},
    {"fcINT", store<&FontState::Color, colorByNumber>},
    {"fcHEX", store<&FontState::Color, colorByNumber>},
};

constexpr AttributeKey<FontState> kFontKeys[] = {
    {"o", rotateByQuarters},
    {"od", rotateByTenths},
    {"fn", setFace},
    {"height", store<&FontState::Height, realNumber>},
    {"width", store<&FontState::Width, realNumber>},
    {"vs", store<&FontState::LineSpacing, realNumber>},
    {"hs", store<&FontState::CharSpacing, realNumber>},
    {"reset", ignore},
};

// Keys of a text item that a style tag takes, too, without an effect.
constexpr AttributeKey<FontState> kIdleStyleKeys[] = {
    {"tc", ignore}, {"left", ignore}, {"top", ignore}};

// --- Texts ---------------------------------------------------------------------------------------

void setText(VData_Text& item, const AttributeValue& value) {
  item.Text = value.text;
}

template <auto Field>
void setPosition(VData_Text& item, const AttributeValue& value) {
  const auto position = millimetresAsTwips(value);
  if (!position) return;
  item.*Field = *position;
  item.HasPosition = true;
}

constexpr AttributeKey<VData_Text> kTextKeys[] = {
    {"tc", setText},
    {"left", setPosition<&VData_Text::Left>},
    {"top", setPosition<&VData_Text::Top>},
    {"right", store<&VData_Text::Right, millimetresAsTwips>},
    {"bottom", store<&VData_Text::Bottom, millimetresAsTwips>},
    {"alignH", store<&VData_Text::AlignH, wholeNumber>},
    {"alignV", store<&VData_Text::AlignV, wholeNumber>},
};

// --- Shapes and pictures -------------------------------------------------------------------------

constexpr AttributeKey<VData_Shape> kShapeKeys[] = {
    {"sh_type", store<&VData_Shape::ShapeType, wholeNumber>},
    {"pt", store<&VData_Shape::PenType, wholeNumber>},
    {"pc", store<&VData_Shape::PenColor, colorByName>},
    {"pc16", store<&VData_Shape::PenColor, colorByIndex>},
    {"pc256", store<&VData_Shape::PenColor, colorOf256>},
    {"pcRGB", store<&VData_Shape::PenColor, colorByRgb>},
    {"pcINT", store<&VData_Shape::PenColor, colorByNumber>},
    {"pcHEX", store<&VData_Shape::PenColor, colorByNumber>},
    {"bt", store<&VData_Shape::BrushType, wholeNumber>},
    {"bc", store<&VData_Shape::BrushColor, colorByName>},
    {"bc16", store<&VData_Shape::BrushColor, colorByIndex>},
    {"bc256", store<&VData_Shape::BrushColor, colorOf256>},
    {"bcRGB", store<&VData_Shape::BrushColor, colorByRgb>},
    {"bcINT", store<&VData_Shape::BrushColor, colorByNumber>},
    {"bcHEX", store<&VData_Shape::BrushColor, colorByNumber>},
    {"left", store<&VData_Shape::Left, millimetresAsTwips>},
    {"top", store<&VData_Shape::Top, millimetresAsTwips>},
    {"right", store<&VData_Shape::Right, millimetresAsTwips>},
    {"bottom", store<&VData_Shape::Bottom, millimetresAsTwips>},
    {"rw", store<&VData_Shape::RoundWidth, wholeNumber>},
    {"rh", store<&VData_Shape::RoundHeight, wholeNumber>},
    {"lw", store<&VData_Shape::LineWidth, wholeNumber>},
};

// Keys of a picture that a shape takes, too, without an effect.
constexpr AttributeKey<VData_Shape> kIdleShapeKeys[] = {
    {"image", ignore}, {"imgn", ignore}, {"imgSS", ignore}};

void setFileName(VData_Image& item, const AttributeValue& value) {
  item.FileName = value.quoted ? value.text : std::string_view();
}

constexpr AttributeKey<VData_Image> kImageKeys[] = {
    {"image", setFileName},
    {"imgn", store<&VData_Image::ImageNumber, wholeNumber>},
    {"imgSS", store<&VData_Image::ImageStretch, wholeNumber>},
};

// --- Barcodes ------------------------------------------------------------------------------------

void setBarcodeType(VData_BarCode& item, const AttributeValue& value) {
  item.SetType(value.text);
}

void setBarcodeValue(VData_BarCode& item, const AttributeValue& value) {
  item.SetValue(value.text);
}

void setSizeFactor(VData_BarCode& item, const AttributeValue& value) {
  if (const auto percent = wholeNumber(value)) {
    item.SizeFactor = static_cast<float>(*percent) / 100.0F;
  }
}

// Both margin keys write the top margin: reports rely on the later one winning.
constexpr AttributeKey<VData_BarCode> kBarcodeKeys[] = {
    {"br_type", setBarcodeType},
    {"value", setBarcodeValue},
    {"value_type", store<&VData_BarCode::ValueType, wholeNumber>},
    {"value_show", store<&VData_BarCode::ShowValue, flag>},
    {"value_pos", store<&VData_BarCode::ValuePosition, wholeNumber>},
    {"value_font", store<&VData_BarCode::ValueFont, wholeNumber>},
    {"size_set", store<&VData_BarCode::SizeSet, flag>},
    {"size_factor", setSizeFactor},
    {"manual_width", store<&VData_BarCode::ManualWidth, flag>},
    {"line_width", store<&VData_BarCode::LineWidth, realNumber>},
    {"manual_height", store<&VData_BarCode::ManualHeight, flag>},
    {"margin_top", store<&VData_BarCode::MarginTop, realNumber>},
    {"margin_bottom", store<&VData_BarCode::MarginTop, realNumber>},
    {"orient", store<&VData_BarCode::Orientation, wholeNumber>},
    {"brc", store<&VData_BarCode::BarColor, colorByName>},
    {"brc16", store<&VData_BarCode::BarColor, colorByIndex>},
    {"brc256", store<&VData_BarCode::BarColor, colorOf256>},
    {"brcRGB", store<&VData_BarCode::BarColor, colorByRgb>},
    {"brcINT", store<&VData_BarCode::BarColor, colorByNumber>},
    {"brcHEX", store<&VData_BarCode::BarColor, colorByNumber>},
};

constexpr AttributeKey<FontState> kCaptionKeys[] = {
    {"font_name", setFace},
    {"font_height", store<&FontState::Height, realNumber>},
    {"font_width", store<&FontState::Width, realNumber>},
};

// --- The loop over a tag -------------------------------------------------------------------------

template <class Target>
const AttributeKey<Target>* find(std::span<const AttributeKey<Target>> keys,
                                 std::string_view name) {
  const auto found =
      std::find_if(keys.begin(), keys.end(), [name](const auto& key) { return key.name == name; });
  return found == keys.end() ? nullptr : &*found;
}

// One table of keys and what they act on. A tag is read against several of them.
template <class Target>
class KeyGroup {
 public:
  template <std::size_t Count>
  KeyGroup(const AttributeKey<Target> (&keys)[Count], Target& target)
      : keys_(keys), target_(target) {}

  // Takes the attribute's value and applies it, if the key is one of this table.
  bool take(std::string_view name, AttributeReader& reader) {
    const auto* key = find(keys_, name);
    if (key == nullptr) return false;
    const bool text = key->name == "tc" && std::is_same_v<Target, VData_Text>;
    const AttributeValue value = text ? reader.takeText() : reader.takeValue();
    if (!value.text.empty()) {
      key->apply(target_, value);
      ++applied_;
    }
    return true;
  }

  int applied() const { return applied_; }

 private:
  std::span<const AttributeKey<Target>> keys_;
  Target& target_;
  int applied_ = 0;
};

// Gives the item the font that it has once `read` has changed it.
template <class Read>
void changeFont(VData_Font& item, Read read) {
  FontState font = *item.Font;
  read(font);
  if (font != *item.Font) item.Font = SharedFont(font);
}

// Returns how many attributes had an effect on one of the groups.
template <class... Targets>
int readWith(std::string_view attributes, KeyGroup<Targets>... groups) {
  AttributeReader reader(attributes);
  while (!reader.atEnd()) {
    const auto name = reader.key();
    if (!name || !(groups.take(*name, reader) || ...)) reader.skipToken();
  }
  return (groups.applied() + ...);
}

}  // namespace

void readAttributes(std::string_view attributes, FontState& font) {
  readWith(attributes, KeyGroup(kFontKeys, font), KeyGroup(kFontStyleKeys, font),
           KeyGroup(kIdleStyleKeys, font));
}

void readAttributes(std::string_view attributes, VData_Text& item) {
  changeFont(item, [&](FontState& font) {
    readWith(attributes, KeyGroup(kTextKeys, item), KeyGroup(kFontKeys, font),
             KeyGroup(kFontStyleKeys, font));
  });
}

void readAttributes(std::string_view attributes, VData_Shape& item) {
  readWith(attributes, KeyGroup(kShapeKeys, item), KeyGroup(kIdleShapeKeys, item));
}

void readAttributes(std::string_view attributes, VData_Image& item) {
  readWith(attributes, KeyGroup(kImageKeys, item), KeyGroup<VData_Shape>(kShapeKeys, item));
}

void readAttributes(std::string_view attributes, VData_BarCode& item) {
  changeFont(item, [&](FontState& font) {
    item.AttributeCount +=
        readWith(attributes, KeyGroup(kBarcodeKeys, item), KeyGroup(kCaptionKeys, font),
                 KeyGroup(kFontStyleKeys, font), KeyGroup<VData_Shape>(kShapeKeys, item));
  });
}

}  // namespace qor
