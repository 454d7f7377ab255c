#include "platform/fake/recording_canvas.h"

#include <cmath>

namespace qh {

void RecordingCanvas::resize(int widthTwips, int heightTwips) {
    width_ = widthTwips;
    height_ = heightTwips;
}

void RecordingCanvas::clear(Color background) {
    calls_.clear();
    calls_.push_back({CanvasCall::Clear, 0, 0, width_, height_, background, {}, font_});
}

void RecordingCanvas::line(int x1, int y1, int x2, int y2, Color color) {
    calls_.push_back({CanvasCall::Line, x1, y1, x2, y2, color, {}, font_});
}

void RecordingCanvas::filledBox(int x1, int y1, int x2, int y2, Color color) {
    calls_.push_back({CanvasCall::FilledBox, x1, y1, x2, y2, color, {}, font_});
}

void RecordingCanvas::printText(int x, int y, const std::string& text) {
    calls_.push_back({CanvasCall::Text, x, y, x + textWidth(text), y, foreColor_, text, font_});
}

int RecordingCanvas::textWidth(const std::string& text) const {
    const double perChar = font_.size * 8.0 * (font_.bold ? 1.1 : 1.0);
    return int(std::lround(perChar * double(text.size())));
}

int RecordingCanvas::textHeight() const {
    // A line of a point size is about 1.15 of it, at 20 twips to the point.
    return int(std::lround(font_.size * 23.0));
}

void RecordingCanvas::paintPicture(const std::string& picture, int x, int y) {
    calls_.push_back({CanvasCall::Picture, x, y, x, y, 0, picture, font_});
}

std::string RecordingCanvas::textsIn(int x1, int y1, int x2, int y2) const {
    std::string joined;
    for (const CanvasCall& call : calls_) {
        if (call.kind != CanvasCall::Text) continue;
        if (call.x1 < x1 || call.x1 > x2 || call.y1 < y1 || call.y1 > y2) continue;
        if (!joined.empty()) joined += "|";
        joined += call.text;
    }
    return joined;
}

std::vector<std::string> RecordingCanvas::texts() const {
    std::vector<std::string> result;
    for (const CanvasCall& call : calls_)
        if (call.kind == CanvasCall::Text) result.push_back(call.text);
    return result;
}

}  // namespace qh
