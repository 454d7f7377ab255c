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

enum class FormEvent { Click, DblClick, Change, MouseDown, MouseUp, Timer, GotFocus, Scroll };

struct EventArgs {
    int button = 1;  // 1 left, 2 right
    int shift = 0;
    int x = 0, y = 0;  // twips inside the control
};

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
    int minWidth = 0, minHeight = 0;  // outer size the user can't drag the window below; 0 for none
    std::string focusedControl;

    // Sets the outer size and derives the client area as the renderer will give it.
    void setOuterSize(int widthTwips, int heightTwips);
    static constexpr int kFrameWidth = 120;    // borders, both sides
    static constexpr int kFrameHeight = 510;   // title bar and borders
    static constexpr int kMenuBarHeight = 300;
    bool hasMenuBar() const;

    // Adds a control. Drawable picture boxes get a canvas from the factory given at
    // construction of the window (see setCanvasFactory).
    Control& add(ControlKind kind, const std::string& name, const std::string& container, int left, int top,
                 int width, int height, int index = -1);
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
    // does nothing, as in any window.
    void on(const std::string& key, FormEvent event, Handler handler);
    void fire(const std::string& key, FormEvent event, const EventArgs& args = {});
    bool handles(const std::string& key, FormEvent event) const;

    // The user's gestures, as the renderer forwards them and tests drive them. Each changes
    // the control as the toolkit would, then fires the event.
    void click(const std::string& key);
    void type(const std::string& key, const std::string& text);
    void select(const std::string& key, int listIndex);
    void select(const std::string& key, const std::string& entry);
    void setChecked(const std::string& key, bool checked);
    void scrollTo(const std::string& key, int value);
    void press(const std::string& key, const EventArgs& args = {});
    void release(const std::string& key, const EventArgs& args = {});
    void tick(const std::string& timerKey);

    // Z-order within the container.
    void bringToFront(const std::string& key);
    void sendToBack(const std::string& key);

    // Window events. queryUnload answers whether a close by the close box may go on.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual bool Form_QueryUnload() { return true; }
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}

    void hide() { visible = false; }

    // Makes canvases for drawable picture boxes; set before adding them.
    void setCanvasFactory(CanvasFactory* factory) { canvasFactory_ = factory; }
    // Resizes a control and, if it is drawable, its canvas.
    void move(const std::string& key, int left, int top, int width, int height);

private:
    Control& find(const std::string& key);
    std::string name_;
    std::map<std::string, std::unique_ptr<Control>> controls_;
    std::vector<std::string> order_;
    std::map<std::pair<std::string, FormEvent>, Handler> handlers_;
    CanvasFactory* canvasFactory_ = nullptr;
    int nextZ_ = 0;
};

}  // namespace qh
