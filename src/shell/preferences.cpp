#include "shell/preferences.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "common/failure.h"
#include "record_store/codepage.h"
#include "record_store/storage_locations.h"

namespace qh {
namespace {

constexpr const char* kFileName = "Preferences.ini";

// A pixel value as the file has always held it: twips / 15 as a single-precision
// number, in its shortest text of up to seven significant digits ("640", "42.66667").
std::string pixelText(int twips) {
    const float pixels = static_cast<float>(twips / 15.0);
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.7g", double(pixels));
    std::string text = buffer;
    for (char& c : text)
        if (c == 'e') c = 'E';
    return text;
}

// A value converted to a 16-bit integer the way the reader always has: blanks around it
// allowed, a decimal fraction rounded half to even ("42.5" is 42, "43.5" is 44). Nothing
// for a text that is no number or a number outside 16 bits.
std::optional<Int16> toWhole16(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    if (text.empty()) return std::nullopt;
    // Only a sign, digits and one decimal point: no hexadecimal, no exponent, no words.
    std::size_t i = (text[0] == '+' || text[0] == '-') ? 1 : 0;
    bool digits = false, point = false;
    for (; i < text.size(); ++i) {
        if (text[i] >= '0' && text[i] <= '9') {
            digits = true;
        } else if (text[i] == '.' && !point) {
            point = true;
        } else {
            return std::nullopt;
        }
    }
    if (!digits) return std::nullopt;
    const double value = std::nearbyint(std::strtod(std::string(text).c_str(), nullptr));  // ties to even
    if (value < -32768.0 || value > 32767.0) return std::nullopt;
    return static_cast<Int16>(value);
}

struct StopReading {};

Int16 whole16(std::string_view text) {
    if (auto value = toWhole16(text)) return *value;
    throw StopReading{};
}

// A stored geometry value counts only when it is at least 1 and smaller than the
// screen's pixels in that direction; it then becomes twips, computed in 16 bits.
void applyGeometry(std::string_view text, int screenPixels, int& twips) {
    const Int16 v = whole16(text);
    if (v >= 1 && screenPixels > v) {
        const long long product = static_cast<long long>(v) * 15;
        if (product > 32767) throw StopReading{};
        twips = static_cast<int>(product);
    }
}

bool startsWith(std::string_view line, std::string_view key) { return line.substr(0, key.size()) == key; }

}  // namespace

WindowPlacement ClampToArea(WindowPlacement window, const Windowing::Area& area) {
    if (window.state != 0 || area.width <= 0 || area.height <= 0) return window;
    window.width = std::min(window.width, area.width);
    window.height = std::min(window.height, area.height);
    window.left = std::clamp(window.left, area.left, area.left + area.width - window.width);
    window.top = std::clamp(window.top, area.top, area.top + area.height - window.height);
    return window;
}

std::string PreferencesText(const WindowPlacement& window, const PreferenceValues& values) {
    std::string text = "[Window Position]\r\n";
    text += "FormMainState=" + std::to_string(window.state) + "\r\n";
    if (window.state != 0) {
        text += "FormMainLocationX=0\r\nFormMainLocationY=0\r\nFormMainSizeX=0\r\nFormMainSizeY=0\r\n";
    } else {
        text += "FormMainLocationX=" + pixelText(window.left) + "\r\n";
        text += "FormMainLocationY=" + pixelText(window.top) + "\r\n";
        text += "FormMainSizeX=" + pixelText(window.width) + "\r\n";
        text += "FormMainSizeY=" + pixelText(window.height) + "\r\n";
    }
    text += "\r\n[Options]\r\n";
    text += "ActiveTerm=" + values.ActiveTerm + "\r\n";
    text += "StartDayofWeek=" + values.StartDayOfWeek + "\r\n";
    text += "ShowTipsAtStartup=" + values.ShowTipsAtStartup + "\r\n";
    text += "CurrentTip=" + std::to_string(values.CurrentTip) + "\r\n";
    return text;
}

void ReadPreferencesText(std::string_view text, int screenWidthPx, int screenHeightPx, WindowPlacement& window,
                         PreferenceValues& values) {
    values.StartDayOfWeek = "Sunday";
    values.ShowTipsAtStartup = "Yes";
    while (!text.empty()) {
        // A line ends at CR LF, a lone CR or a lone LF.
        const std::size_t end = text.find_first_of("\r\n");
        const std::string_view line = text.substr(0, end);
        if (end == std::string_view::npos) {
            text = {};
        } else {
            const bool crlf = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
            text.remove_prefix(end + (crlf ? 2 : 1));
        }

        // A line that does not read is skipped; the lines after it still count.
        try {
            auto valueAfter = [&](std::string_view key) -> std::optional<std::string_view> {
                if (!startsWith(line, key)) return std::nullopt;
                return line.substr(key.size());
            };
            if (auto v = valueAfter("FormMainState=")) {
                window.state = whole16(*v) == 2 ? 2 : 0;
            } else if (auto v = valueAfter("FormMainLocationX=")) {
                applyGeometry(*v, screenWidthPx, window.left);
            } else if (auto v = valueAfter("FormMainLocationY=")) {
                applyGeometry(*v, screenHeightPx, window.top);
            } else if (auto v = valueAfter("FormMainSizeX=")) {
                applyGeometry(*v, screenWidthPx, window.width);
            } else if (auto v = valueAfter("FormMainSizeY=")) {
                applyGeometry(*v, screenHeightPx, window.height);
            } else if (auto v = valueAfter("ActiveTerm=")) {
                values.ActiveTerm = std::string(*v);
            } else if (auto v = valueAfter("StartDayofWeek=")) {
                values.StartDayOfWeek =
                    (*v == "Sunday" || *v == "Monday" || *v == "Saturday") ? std::string(*v) : "Monday";
            } else if (auto v = valueAfter("ShowTipsAtStartup=")) {
                values.ShowTipsAtStartup = (*v == "Yes" || *v == "No") ? std::string(*v) : "Yes";
            } else if (auto v = valueAfter("CurrentTip=")) {
                values.CurrentTip = whole16(*v);
            }
        } catch (const StopReading&) {
        }
    }
}

void ReadPreferences(Platform& platform, const RecordStore& store, int screenWidthPx, int screenHeightPx,
                     WindowPlacement& window, PreferenceValues& values) {
    values.StartDayOfWeek = "Sunday";
    values.ShowTipsAtStartup = "Yes";
    std::string bytes;
    try {
        bytes = platform.files.readAll(dataFilePath(store, kFileName));
    } catch (const FileFailure&) {
        return;
    }
    ReadPreferencesText(fromCodePage(bytes), screenWidthPx, screenHeightPx, window, values);
}

bool WritePreferences(Platform& platform, const RecordStore& store, const WindowPlacement& window,
                      const PreferenceValues& values) {
    try {
        EnterDirectory(platform, store.DataDirectory);
        platform.files.writeWhole(dataFilePath(store, kFileName), toCodePage(PreferencesText(window, values)));
        return true;
    } catch (const FileFailure&) {
        return false;
    }
}

}  // namespace qh
