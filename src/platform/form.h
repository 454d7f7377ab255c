#pragma once
// A window of the planner as a model: it owns its controls by name and its behaviour as
// handlers named after control and event (ButtonOK_Click, Timer1_Timer...). The renderer
// shows any Form; tests drive one by control name without a display.
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/control.h"

namespace qh {

class CanvasFactory;

enum class FormEvent { Click, DblClick, Change, MouseDown, MouseUp, Timer, GotFocus, LostFocus, KeyDown, KeyPress, Scroll, MouseWheel };

struct EventArgs {
    int button = 1;  // 1 left, 2 right
    int shift = 0;   // 1 shift, 2 control, 4 alt
    int x = 0, y = 0;  // twips inside the control
    int keyCode = 0;   // KeyDown: the key's code (13 Enter, 27 Escape, 'A' for a or A); KeyPress: the character
    int notches = 0;   // MouseWheel: notches turned, positive away from the user (up)
};

// Where a request to close a window comes from. A window may refuse a close by its close
// box or by code; the program's end always passes.
enum class UnloadMode { CloseBox = 0, Code = 1, ProgramEnd = 2 };

// Key codes the kit itself acts on.
constexpr int kKeyReturn = 13;
constexpr int kKeyEscape = 27;
constexpr int kKeyTab = 9;
// Keys the planner's own controls move by.
constexpr int kKeyPageUp = 33;
constexpr int kKeyPageDown = 34;
constexpr int kKeyEnd = 35;
constexpr int kKeyHome = 36;
constexpr int kKeyLeft = 37;
constexpr int kKeyUp = 38;
constexpr int kKeyRight = 39;
constexpr int kKeyDown = 40;

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

class Form {
public:
    using Handler = std::function<void(const EventArgs&)>;

    explicit Form(std::string name);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }

    // Window properties, twips. width/height are the outer size, scaleWidth/scaleHeight the
    // client area the controls lie in; the renderer keeps the two in step.
    std::string caption;
    int left = 0, top = 0, width = 0, height = 0;
    int scaleWidth = 0, scaleHeight = 0;
    WindowState windowState = WindowState::Normal;
    bool visible = false;
    bool fixedSize = false;  // a dialog that can't be resized
    bool titleBar = true;    // false for a window of no frame at all (the splash)
    int minWidth = 0, minHeight = 0;  // outer size the user can't drag the window below; 0 for none
    // The control that holds the keyboard focus, empty for none. Models move it with
    // SetFocus, never by assigning it.
    std::string focusedControl;
    // The buttons Enter and Escape click, empty for none.
    std::string defaultButton, cancelButton;

    // Sets the outer size and derives the client area as the renderer will give it.
    void setOuterSize(int widthTwips, int heightTwips);
    // Places the window over the middle of `owner`, kept inside the area given (the
    // screen's usable part), as a dialog opens over the window that asked for it.
    void centreOver(const Form& owner, int areaLeft, int areaTop, int areaWidth, int areaHeight);
    static constexpr int kFrameWidth = 120;    // borders, both sides
    static constexpr int kFrameHeight = 510;   // title bar and borders
    static constexpr int kMenuBarHeight = 300;
    bool hasMenuBar() const;

    // Adds a control. Drawable picture boxes get a canvas from the factory given at
    // construction of the window (see setCanvasFactory).
    Control& add(ControlKind kind, const std::string& name, const std::string& container, int left, int top,
                 int width, int height, int index = -1);
    // A label with its caption that lets its container show through, as the main window and
    // the calendar place their texts over painted backgrounds.
    Control& addLabel(const std::string& name, const std::string& container, int left, int top, int width,
                      int height, const std::string& caption, int index = -1);
    // A picture box that owns a canvas of its size.
    Control& addDrawable(const std::string& name, const std::string& container, int left, int top, int width,
                         int height, int index = -1);
    Control& addMenu(const std::string& name, const std::string& parent, const std::string& caption);

    bool has(const std::string& key) const;
    Control& c(const std::string& key);
    const Control& c(const std::string& key) const;
    Control& c(const std::string& name, int index) { return c(name + "(" + std::to_string(index) + ")"); }
    const Control& c(const std::string& name, int index) const { return c(name + "(" + std::to_string(index) + ")"); }
    const std::vector<std::string>& order() const { return order_; }

    // Handlers. fire() runs the handler of a control's event; an event without a handler
    // does nothing, as in any window. Hanging a handler on a control the window doesn't
    // have fails at once (UntrappedFailure), so a misspelt name fails when the window is
    // built, not at a click.
    void on(const std::string& key, FormEvent event, Handler handler);
    void fire(const std::string& key, FormEvent event, const EventArgs& args = {});
    // The control whose handler runs now, in words ("OK" in "Quillhollow - Edit Task"),
    // empty outside any handler. A handler that fails leaves it naming the innermost
    // handler, so the report of a failure can say what the planner was doing.
    static const std::string& actionInProgress();
    bool handles(const std::string& key, FormEvent event) const;

    // The user's gestures, as the renderer forwards them and tests drive them. Each changes
    // the control as the toolkit would, then fires the event.
    // A click: a focusable control takes the focus first (the control that had it gets
    // LostFocus), as a mouse press does. A click on a disabled or hidden control does nothing.
    void click(const std::string& key);
    void type(const std::string& key, const std::string& text);
    void select(const std::string& key, int listIndex);
    void select(const std::string& key, const std::string& entry);
    // Sets a check box or radio button from code or by a gesture; a change fires Click, as
    // the windowing layer does. A radio button set on clears the others of its container.
    void setChecked(const std::string& key, bool checked);
    void scrollTo(const std::string& key, int value);
    void press(const std::string& key, const EventArgs& args = {});
    void release(const std::string& key, const EventArgs& args = {});
    // The mouse wheel turned over a control: MouseWheel on the innermost control under
    // the pointer that handles it, going out through its containers.
    void wheel(const std::string& key, int notches);
    // The control a turn over `key` reaches: it or its nearest container that takes the
    // wheel; empty for none.
    std::string wheelTarget(const std::string& key) const;
    void tick(const std::string& timerKey);
    // A key pressed while the window has the focus: KeyDown on the focused control, then
    // KeyPress for a character; Enter clicks the focused button (Enter or Space a focused
    // link), else the default button
    // (unless a multi-line box has the focus), and Escape the cancel button; a focused box
    // that takes keys keeps Enter and Escape for itself. The arrows on a radio button
    // choose the next or previous one of its group.
    void pressKey(int keyCode, int character = 0, int shift = 0);

    // The focus. focusTo is the gesture (a click, Tab, the toolkit's own focus change): it
    // fires LostFocus on the control that had the focus and GotFocus on the new one, and
    // does nothing when the control already has it. SetFocus is the model's request: the
    // same, and the renderer moves the real focus there; a disabled or hidden control
    // can't take it (UntrappedFailure, as the windowing layer's error).
    void focusTo(const std::string& key);
    void SetFocus(const std::string& key);
    // Counts the SetFocus requests, so the renderer sees one it has not applied yet.
    unsigned focusRequests() const { return focusRequests_; }
    // The controls Tab may ever visit, in order: those that can take the focus, are tab
    // stops and are not read-only boxes, by their place on the window (top, then left),
    // whether or not the student can reach them now. The renderer chains its widgets so.
    std::vector<std::string> tabPlaces() const;
    // The controls the Tab key visits now: the places within reach, and of a group of
    // radio buttons only the one that leads it, so Tab leaves the group and the arrows
    // move inside it. `alsoKey` joins the order at its place though it is no stop.
    std::vector<std::string> tabOrder(const std::string& alsoKey = "") const;
    // Whether the student can see and use the control: it and its containers shown and
    // enabled, its middle inside each container and the window's client area, and no
    // frame or picture box lying over it (the stacked panels of a window).
    bool withinReach(const std::string& key) const;
    // The radio button Tab stops at for its group (the radio buttons of one container
    // within reach): the one set, else the first by place.
    bool leadsRadioGroup(const std::string& key) const;
    // After a gesture: the focus on a control a handler took out of reach (disabled,
    // hidden, covered) goes on to the next stop after its place, as Tab would take it, so
    // that it never rests where no one sees it.
    void keepFocusInReach();
    // The controls a press inside `containerKey` may fall on: true when `key` lies in it,
    // at any depth.
    bool isInside(const std::string& key, const std::string& containerKey) const;

    // The caption of the label that names a field for the eye: the nearest visible label
    // of the same container just above it (overlapping it across) or just left of it
    // (overlapping it in height); empty when there is none. Screen readers call the field
    // by it, as a person reads the window.
    std::string labelOf(const std::string& key) const;

    // Z-order within the container.
    void bringToFront(const std::string& key);
    void sendToBack(const std::string& key);

    // Window events. Form_Activate runs at every showing, modal or not, after the caller
    // set the window's public fields. Form_QueryUnload answers whether a close may go on;
    // its answer is not asked for at the program's end. Form_MouseDown runs before the
    // handlers of any press or click on the window, with the key of the control pressed.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual bool Form_QueryUnload(UnloadMode) { return true; }
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}
    virtual void Form_MouseDown(const std::string& /*controlKey*/) {}

    void hide() { visible = false; }

    // The lifecycle every windowing layer runs. showing(): the window becomes visible and
    // Form_Activate runs. requestClose(): asks the model (always passes at the program's
    // end); if it agrees, Form_Unload runs and the window is no longer visible. Returns
    // whether the window closed; a model that refuses may have hidden itself.
    void showing();
    bool requestClose(UnloadMode mode);

    // Makes canvases for drawable picture boxes; set before adding them.
    void setCanvasFactory(CanvasFactory* factory) { canvasFactory_ = factory; }
    // Resizes a control and, if it is drawable, its canvas.
    void move(const std::string& key, int left, int top, int width, int height);

    // Typed control references resolve here; a name the window doesn't have fails.
    void bindControls();

private:
    friend class ControlBinding;
    Control& find(const std::string& key);
    void uncheckOtherRadios(const Control& control);
    // The controls `keep` accepts, by their place on the window: top, then left.
    std::vector<std::string> byPlace(const std::function<bool(const std::string&, const Control&)>& keep) const;
    // The radio buttons of `key`'s container within reach, by place.
    std::vector<std::string> radioGroupOf(const std::string& key) const;
    // An arrow on a radio button: the next (or previous) of its group is chosen, as a click.
    void stepRadioGroup(const std::string& key, bool forward);
    std::vector<class ControlBinding*> refs_;
    unsigned focusRequests_ = 0;
    std::string name_;
    std::map<std::string, std::unique_ptr<Control>> controls_;
    std::vector<std::string> order_;
    std::map<std::pair<std::string, FormEvent>, Handler> handlers_;
    CanvasFactory* canvasFactory_ = nullptr;
    int nextZ_ = 0;
};

}  // namespace qh
