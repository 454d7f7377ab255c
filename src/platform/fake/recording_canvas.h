#pragma once
// A canvas that keeps every call, so a test can read what a surface shows: which texts
// stand inside a box, which boxes were filled in which colour, which pictures were painted.
#include <string>
#include <vector>

#include "platform/canvas.h"

namespace qh {

struct CanvasCall {
    enum Kind { Clear, Line, FilledBox, Text, Picture } kind;
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Color color = 0;
    std::string text;  // printed text or picture name
    CanvasFont font;
};

class RecordingCanvas : public Canvas {
public:
    void resize(int widthTwips, int heightTwips) override;
    int scaleWidth() const override { return width_; }
    int scaleHeight() const override { return height_; }
    void clear(Color background) override;
    void line(int x1, int y1, int x2, int y2, Color color) override;
    void filledBox(int x1, int y1, int x2, int y2, Color color) override;
    void setFont(const CanvasFont& font) override { font_ = font; }
    const CanvasFont& font() const override { return font_; }
    void setForeColor(Color color) override { foreColor_ = color; }
    void printText(int x, int y, const std::string& text) override;
    // A fixed metric so tests can compute widths: every character is fontSize * 8 twips
    // wide, bold adds a tenth.
    int textWidth(const std::string& text) const override;
    int textHeight() const override;
    void paintPicture(const std::string& picture, int x, int y) override;

    // Everything drawn since the last clear.
    const std::vector<CanvasCall>& calls() const { return calls_; }
    // Texts whose top left lies inside the box (inclusive), in drawing order, joined by "|".
    std::string textsIn(int x1, int y1, int x2, int y2) const;
    // All texts since the last clear, in drawing order.
    std::vector<std::string> texts() const;

private:
    int width_ = 0, height_ = 0;
    CanvasFont font_;
    Color foreColor_ = kBlack;
    std::vector<CanvasCall> calls_;
};

class RecordingCanvasFactory : public CanvasFactory {
public:
    std::shared_ptr<Canvas> create() override { return std::make_shared<RecordingCanvas>(); }
};

}  // namespace qh
