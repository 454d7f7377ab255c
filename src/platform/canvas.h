#pragma once
// A surface the planner paints on itself: the list grid, its column headers and the status
// bar. Coordinates are twips (15 to the pixel) from the top left of the drawable area.
// What is drawn stays until the next clear.
#include <memory>
#include <string>
#include <string_view>

#include "common/color.h"

namespace qh {

struct CanvasFont {
    std::string name = "MS Sans Serif";
    double size = 8.25;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    bool operator==(const CanvasFont&) const = default;
};

class Canvas {
public:
    virtual ~Canvas() = default;
    // Size of the drawable area in twips; set by the window that owns the picture box.
    virtual void resize(int widthTwips, int heightTwips) = 0;
    virtual int scaleWidth() const = 0;
    virtual int scaleHeight() const = 0;

    // Empties the surface to its background colour.
    virtual void clear(Color background) = 0;
    virtual void line(int x1, int y1, int x2, int y2, Color color) = 0;
    // A box filled with the colour, corners included.
    virtual void filledBox(int x1, int y1, int x2, int y2, Color color) = 0;

    virtual void setFont(const CanvasFont& font) = 0;
    virtual const CanvasFont& font() const = 0;
    virtual void setForeColor(Color color) = 0;
    // Prints text with the current font and fore colour, its top left at (x, y).
    virtual void printText(int x, int y, const std::string& text) = 0;
    // Width of the text in the current font, in twips.
    virtual int textWidth(const std::string& text) const = 0;
    // Height of a line of the current font, its descenders included, in twips.
    virtual int textHeight() const = 0;
    // A named picture ("Checked", "Unchecked", ...), its top left at (x, y).
    virtual void paintPicture(const std::string& picture, int x, int y) = 0;
};

// Makes the surfaces of drawable picture boxes: an image in the program, a recording in
// tests.
class CanvasFactory {
public:
    virtual ~CanvasFactory() = default;
    virtual std::shared_ptr<Canvas> create() = 0;
};

// The text as it fits in `width` on the canvas: whole when it fits, else cut at a whole
// character and ended by `ending` ("..." for a line that says it goes on, nothing for a
// cell that simply clips).
std::string FitToWidth(const Canvas& canvas, std::string text, int width, std::string_view ending = "");

}  // namespace qh
