#include "record_store/color_vocabulary.h"

#include <iterator>

#include "common/failure.h"

namespace qh {
namespace {

struct NamedColor {
    const char* name;
    Color value;  // &HBBGGRR
};

// The palette in the order of the class schedule's colour grid, 14 to a line. The values
// stand as the planner has always had them, MediumPurple and PaleVioletRed included.
// clang-format off
constexpr NamedColor kTable[] = {
    {"White", 0xFFFFFF}, {"Black", 0x000000}, {"DimGray", 0x696969}, {"Gray", 0x808080},
    {"DarkGray", 0xA9A9A9}, {"Silver", 0xC0C0C0}, {"LightGray", 0xD3D3D3}, {"Gainsboro", 0xDCDCDC},
    {"WhiteSmoke", 0xF5F5F5}, {"RosyBrown", 0x8F8FBC}, {"IndianRed", 0x5C5CCD}, {"Brown", 0x2A2AA5},
    {"Firebrick", 0x2222B2}, {"LightCoral", 0x8080F0},
    {"Maroon", 0x000080}, {"DarkRed", 0x00008B}, {"Red", 0x0000FF}, {"Snow", 0xFAFAFF},
    {"MistyRose", 0xE1E4FF}, {"Salmon", 0x7280FA}, {"Tomato", 0x4763FF}, {"DarkSalmon", 0x7A96E9},
    {"Coral", 0x507FFF}, {"OrangeRed", 0x0045FF}, {"LightSalmon", 0x7AA0FF}, {"Sienna", 0x2D52A0},
    {"SeaShell", 0xEEF5FF}, {"Chocolate", 0x1E69D2},
    {"SaddleBrown", 0x13458B}, {"SandyBrown", 0x60A4F4}, {"PeachPuff", 0xB9DAFF}, {"Peru", 0x3F85CD},
    {"Linen", 0xE6F0FA}, {"Bisque", 0xC4E4FF}, {"DarkOrange", 0x008CFF}, {"BurlyWood", 0x87B8DE},
    {"Tan", 0x8CB4D2}, {"AntiqueWhite", 0xD7EBFA}, {"NavajoWhite", 0xADDEFF}, {"BlanchedAlmond", 0xCDEBFF},
    {"PapayaWhip", 0xD5EFFF}, {"Moccasin", 0xB5E4FF},
    {"Orange", 0x00A5FF}, {"Wheat", 0xB3DEF5}, {"OldLace", 0xE6F5FD}, {"FloralWhite", 0xF0FAFF},
    {"DarkGoldenrod", 0x0B86B8}, {"Goldenrod", 0x20A5DA}, {"Cornsilk", 0xDCF8FF}, {"Gold", 0x00D7FF},
    {"Khaki", 0x8CE6F0}, {"LemonChiffon", 0xCDFAFF}, {"PaleGoldenrod", 0xAAE8EE}, {"DarkKhaki", 0x6BB7BD},
    {"Beige", 0xDCF5F5}, {"LightGoldenrodYellow", 0xD2FAFA},
    {"Olive", 0x008080}, {"Yellow", 0x00FFFF}, {"LightYellow", 0xE0FFFF}, {"Ivory", 0xF0FFFF},
    {"OliveDrab", 0x238E6B}, {"YellowGreen", 0x32CD9A}, {"DarkOliveGreen", 0x2F6B55}, {"GreenYellow", 0x2FFFAD},
    {"Chartreuse", 0x00FF7F}, {"LawnGreen", 0x00FC7C}, {"DarkSeaGreen", 0x8FBC8F}, {"ForestGreen", 0x228B22},
    {"LimeGreen", 0x32CD32}, {"LightGreen", 0x90EE90},
    {"PaleGreen", 0x98FB98}, {"DarkGreen", 0x006400}, {"Green", 0x008000}, {"Lime", 0x00FF00},
    {"Honeydew", 0xF0FFF0}, {"SeaGreen", 0x578B2E}, {"MediumSeaGreen", 0x71B33C}, {"SpringGreen", 0x7FFF00},
    {"MintCream", 0xFAFFF5}, {"MediumSpringGreen", 0x9AFA00}, {"MediumAquamarine", 0xAACD66},
    {"Aquamarine", 0xD4FF7F}, {"Turquoise", 0xD0E040}, {"LightSeaGreen", 0xAAB220},
    {"MediumTurquoise", 0xCCD148}, {"DarkSlateGray", 0x4F4F2F}, {"PaleTurquoise", 0xEEEEAF}, {"Teal", 0x808000},
    {"DarkCyan", 0x8B8B00}, {"Aqua", 0xFFFF00}, {"Cyan", 0xFFFF00}, {"LightCyan", 0xFFFFE0},
    {"Azure", 0xFFFFF0}, {"DarkTurquoise", 0xD1CE00}, {"CadetBlue", 0xA09E5F}, {"PowderBlue", 0xE6E0B0},
    {"LightBlue", 0xE6D8AD}, {"DeepSkyBlue", 0xFFBF00},
    {"SkyBlue", 0xEBCE87}, {"LightSkyBlue", 0xFACE87}, {"SteelBlue", 0xB48246}, {"AliceBlue", 0xFFF8F0},
    {"DodgerBlue", 0xFF901E}, {"SlateGray", 0x908070}, {"LightSlateGray", 0x998877}, {"LightSteelBlue", 0xDEC4B0},
    {"CornflowerBlue", 0xED9564}, {"RoyalBlue", 0xE16941}, {"MidnightBlue", 0x701919}, {"Lavender", 0xFAE6E6},
    {"Navy", 0x800000}, {"DarkBlue", 0x8B0000},
    {"MediumBlue", 0xCD0000}, {"Blue", 0xFF0000}, {"GhostWhite", 0xFFF8F8}, {"SlateBlue", 0xCD5A6A},
    {"DarkSlateBlue", 0x8B3D48}, {"MediumSlateBlue", 0xEE687B}, {"MediumPurple", 0xD87093}, {"BlueViolet", 0xE22B8A},
    {"Indigo", 0x82004B}, {"DarkOrchid", 0xCC3299}, {"DarkViolet", 0xD30094}, {"MediumOrchid", 0xD355BA},
    {"Thistle", 0xD8BFD8}, {"Plum", 0xDDA0DD},
    {"Violet", 0xEE82EE}, {"Purple", 0x800080}, {"DarkMagenta", 0x8B008B}, {"Magenta", 0xFF00FF},
    {"Fuchsia", 0xFF00FF}, {"Orchid", 0xD670DA}, {"MediumVioletRed", 0x8515C7}, {"DeepPink", 0x9314FF},
    {"HotPink", 0xB469FF}, {"LavenderBlush", 0xF5F0FF}, {"PaleVioletRed", 0x9370D8}, {"Crimson", 0x3C14DC},
    {"Pink", 0xCBC0FF}, {"LightPink", 0xC1B6FF},
};
// clang-format on
static_assert(std::size(kTable) == 140);

std::string keyOf(std::string_view name) {
    std::string key(name);
    for (char& c : key)
        if (c >= 'A' && c <= 'Z') c = char(c - 'A' + 'a');
    return key;
}

// What a keyed list says of a missing key and of a row it does not have.
[[noreturn]] void noSuchKey() { throw UntrappedFailure("Invalid procedure call or argument"); }
[[noreturn]] void noSuchRow() { throw SubscriptOutOfRange(); }
[[noreturn]] void keyTaken() {
    throw UntrappedFailure("This key is already associated with an element of this collection");
}

}  // namespace

Color ColorValueList::operator()(int row) const {
    if (row < 1 || row > count()) noSuchRow();
    return values_[std::size_t(row - 1)];
}

Color ColorValueList::operator()(std::string_view name) const {
    const auto found = rowsByKey_.find(keyOf(name));
    if (found == rowsByKey_.end()) noSuchKey();
    return values_[std::size_t(found->second - 1)];
}

bool ColorValueList::contains(std::string_view name) const { return rowsByKey_.count(keyOf(name)) > 0; }

void ColorValueList::add(std::string_view name, Color value) {
    if (!rowsByKey_.emplace(keyOf(name), count() + 1).second) keyTaken();
    values_.push_back(value);
}

const std::string& ColorNameList::operator()(int row) const {
    if (row < 1 || row > count()) noSuchRow();
    return names_[std::size_t(row - 1)];
}

void ColorVocabulary::BuildColorValues() {
    for (const NamedColor& color : kTable) ColorValues.add(color.name, color.value);
}

void ColorVocabulary::BuildColorNames() {
    for (const NamedColor& color : kTable) ColorNames.add(color.name);
}

const ColorVocabulary& standardColors() {
    static const ColorVocabulary colors = [] {
        ColorVocabulary built;
        built.BuildColorValues();
        built.BuildColorNames();
        return built;
    }();
    return colors;
}

}  // namespace qh
