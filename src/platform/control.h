#pragma once
// A control of a window model: plain data that the renderer shows. Positions and sizes are
// twips (15 to the pixel) relative to the container (the window's client area, or the
// picture box or frame named in `container`).
#include <memory>
#include <string>
#include <vector>

#include "common/color.h"
#include "platform/canvas.h"

namespace qh {

enum class ControlKind {
    Label,
    TextBox,
    ComboBox,
    ListBox,
    CheckBox,
    RadioButton,
    CommandButton,
    PictureBox,  // a container; with `drawable` set it owns a canvas
    Frame,
    ScrollBar,   // vertical
    Timer,
    Menu,        // a menu or menu entry; caption "-" is a separator
    ColorGrid,   // a grid of colour swatches, value = selected row (1-based), 0 for none;
                 // items are the colours as "&HBBGGRR" texts, one per swatch, in square
                 // cells of 150 twips row by row, as many to a row as the width holds
};

enum class Alignment { Left, Right, Center };

struct Control {
    std::string name;
    int index = -1;  // element of a control array, or -1
    ControlKind kind = ControlKind::Label;
    std::string container;  // key of the containing control, empty for the window; for a menu its parent menu

    std::string caption;
    std::string text;
    std::vector<std::string> items;  // combo and list boxes
    int listIndex = -1;              // selected entry, -1 for none

    bool checked = false;  // check box, radio button, menu tick
    bool enabled = true;
    bool visible = true;
    bool locked = false;     // a text box that shows but can't be changed
    bool multiLine = false;  // text box
    int maxLength = 0;       // text box, 0 for no limit

    Color foreColor = kBlack;
    Color backColor = kWhite;
    bool opaque = true;  // labels: false shows the container through

    std::string fontName = "MS Sans Serif";
    double fontSize = 8.25;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Alignment alignment = Alignment::Left;
    bool border = false;  // a sunken frame round labels, pictures and boxes

    int left = 0, top = 0, width = 0, height = 0;
    int z = 0;  // stacking order among siblings: higher lies on top

    bool tabStop = true;  // Tab visits it (when it can take the focus at all)
    // A picture box that takes the keyboard focus and its keys (the calendar, the grid),
    // or a label that is a link: it takes the focus, and Space or Enter clicks it.
    bool focusable = false;

    // What a pointer resting on it says, and what a screen reader calls it. Without a
    // name of its own a control is called by its caption, then by its tooltip.
    std::string toolTip;
    std::string accessibleName;
    // Menu entries: the key combination that chooses them, as "Ctrl+N" or "F1".
    std::string shortcut;

    int helpContextId = 0;
    int interval = 0;  // timer period in ms; the timer runs while `enabled`

    std::string picture;  // named image shown by a picture box, button or label
    std::string tag;

    // scroll bar
    int minimum = 0, maximum = 32767, smallChange = 1, largeChange = 1, value = 0;

    bool drawable = false;           // picture box painted through `canvas`
    std::shared_ptr<Canvas> canvas;  // set for drawable picture boxes

    std::string key() const { return index < 0 ? name : name + "(" + std::to_string(index) + ")"; }
    std::string selectedText() const {
        return listIndex >= 0 && listIndex < int(items.size()) ? items[std::size_t(listIndex)] : std::string();
    }
    // Combo and list box lines. addItem inserts at `at` (-1 for the end) and removeItem
    // takes a line away; the selection stays on the line it was on, or none when that line
    // goes. An index out of range is the windowing layer's error (UntrappedFailure).
    void addItem(const std::string& item, int at = -1);
    void removeItem(int at);
    void clearItems();
    // Whether a window's focus may rest on this kind of control.
    bool canTakeFocus() const;
    bool operator==(const Control&) const = default;
};

}  // namespace qh
