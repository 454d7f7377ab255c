#pragma once
// The generic renderer: shows any window model (qh::Form) with one widget per control,
// named by the control's key and placed by its twips (15 to the pixel, so Qt's device
// pixel ratio scales it), hands the user's gestures to the model, and after every
// forwarded event applies what the handlers changed; what the user changes on a widget
// (its text, tick, line, scroll position) is then set back to whatever the model holds.
//
// Kinds of control and their widgets:
//   Label, PictureBox     PaintedBox (colour, picture, canvas, caption, border, mouse)
//   TextBox               QLineEdit, or QPlainTextEdit when multiLine
//   ComboBox              QComboBox, a drop-down list that can't be typed into
//   ListBox               QListWidget
//   CheckBox, RadioButton QCheckBox, QRadioButton (the container's colour shows through)
//   CommandButton         QPushButton (picture as icon)
//   Frame                 QGroupBox with the caption as title
//   ScrollBar             vertical QScrollBar; arrows and page clicks give Change, a
//                         thumb drag gives Scroll while it moves and Change at release
//   ColorGrid             ColorGridWidget
//   Timer                 QTimer (no widget), running while enabled with a period > 0
//   Menu                  QMenu or QAction in the window's QMenuBar
#include <QEventLoop>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "platform/form.h"

class QMenuBar;
class QMenu;
class QAction;
class QTimer;
class QKeyEvent;

namespace qh {

class FormRenderer;

// The top-level window of one model.
class FormWindow : public QWidget {
public:
    FormWindow(FormRenderer& renderer, Form& form);
    ~FormWindow() override;

    Form& form() { return form_; }
    // The client area the controls lie in; below the menu bar.
    QWidget* client() const { return client_; }
    QMenuBar* menuBar() const { return menuBar_; }
    // The widget of a control, its timer or its menu action; null when it has none.
    QWidget* widget(const std::string& key) const;
    QTimer* timer(const std::string& key) const;
    QAction* action(const std::string& key) const;

    // Applies to the widgets what changed in the model since the last call, and puts every
    // widget's own state (text, tick, selected line, scroll position) back to the model's.
    void sync();
    // Stops the timers for good (the window is closed).
    void retire();
    // Puts the focus, shown as the keyboard's, where a window that just opened has it: on
    // the control the model chose, else on its first stop the user can see and use.
    void focusFirstField();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct View {
        QWidget* widget = nullptr;
        QTimer* timer = nullptr;
        QAction* action = nullptr;  // menus
        QMenu* menu = nullptr;      // menus with entries
        Control last;
        std::string caption;  // the caption as shown, with its underlined letter
        bool fresh = true;
        unsigned long long canvasGeneration = ~0ull;
    };
    struct WindowSnapshot {
        std::string caption;
        int left = 0, top = 0, clientWidth = -1, clientHeight = -1, minWidth = -1, minHeight = -1;
        WindowState state = WindowState::Normal;
        bool visible = false, fixedSize = false, fixedFrame = false, titleBar = true;
        std::string focused, defaultButton;
        unsigned focusRequests = 0;
    };

    void createView(const std::string& key);
    void createWidget(View& view, const Control& control, const std::string& key);
    void applyControl(View& view, const Control& control, const std::string& key);
    void applyCommon(QWidget* widget, const std::string& key, const Control& now, const Control* before);
    void reconcile(QWidget* widget, const Control& now);
    void rebuildMenus();
    void applyMenu(View& view, const Control& control);
    QString menuText(const Control& control) const;
    void applyFocusPolicy(QWidget* widget, const std::string& key, const Control& control);
    void applyFocusReach();
    void applyAccessibility(QWidget* widget, const Control& now, const Control* before);
    void applyWindow();
    void markMnemonics();
    std::string shownCaption(const std::string& key, const Control& control) const;
    void restack(const std::string& containerKey);
    void applyTabOrder();
    bool keyPressed(const std::string& key, QKeyEvent* event);
    QWidget* containerWidget(const std::string& containerKey);
    int menuBarPixels() const;
    void layoutClient();
    void clientResizedByUser();
    template <typename Gesture>
    void forward(Gesture gesture);

    FormRenderer& renderer_;
    Form& form_;
    QWidget* client_;
    QMenuBar* menuBar_;
    std::map<std::string, View> views_;
    std::size_t known_ = 0;
    std::vector<std::string> menuKeys_;
    // The captions of a dialog's buttons and boxes with their underlined letters, made
    // again whenever one of the captions changes.
    std::map<std::string, std::string> mnemonics_;
    std::vector<std::string> mnemonicSource_;
    WindowSnapshot applied_;
    unsigned focusRequestsAtHide_ = 0;
    bool retired_ = false;
};

// Owns the windows of the shown models and runs their modal loops.
class FormRenderer {
public:
    FormRenderer() = default;
    ~FormRenderer();
    FormRenderer(const FormRenderer&) = delete;
    FormRenderer& operator=(const FormRenderer&) = delete;

    void show(Form& form);
    // Shows the window modal and returns when the model has hidden it.
    void showModal(Form& form, Form* owner);
    // Asks the model; if it agrees, runs its unload and takes the window off for good.
    // Returns whether the window closed.
    bool close(Form& form, UnloadMode mode);

    // The window of a model, made on first use; null from windowOf when not made.
    FormWindow& windowFor(Form& form);
    FormWindow* windowOf(const Form& form) const;

    // Runs a user's gesture on a model, then applies every change to every window and
    // ends the modal loops whose window the model hid.
    void forward(const std::function<void()>& gesture);
    // Applies what changed in all models to their windows.
    void syncAll();
    // True while a window the models show is not yet on the display.
    bool anyShownWindowUnexposed() const;
    // True while properties are being applied: widget signals then come from the
    // renderer, not from the user.
    bool applying() const { return applying_ > 0; }
    struct ApplyingScope {
        explicit ApplyingScope(FormRenderer& r) : renderer(r) { ++renderer.applying_; }
        ~ApplyingScope() { --renderer.applying_; }
        FormRenderer& renderer;
    };

    // The program ends when its last window closes; tests switch this off.
    bool quitWhenLastWindowCloses = true;
    // Context help for a control's help number, asked for in What's This mode: the rich
    // text of the bubble. Without it a short note with the number shows. A link clicked
    // in the bubble goes to openHelpLink.
    std::function<std::string(int helpContextId)> helpText;
    std::function<void(const std::string& address)> openHelpLink;

private:
    friend class FormWindow;
    void endFinishedModalLoops();
    void quitIfNoWindowLeft();

    std::map<const Form*, FormWindow*> windows_;
    std::vector<QPointer<FormWindow>> closed_;  // deleted later, or at the end at the latest
    QObject lifetime_;                          // context of the renderer's deferred calls
    struct ModalRun {
        Form* form;
        QEventLoop* loop;
    };
    std::vector<ModalRun> modal_;
    int applying_ = 0;
};

// Hands a user's gesture to the renderer; nothing while the window applies the model's
// own changes (the widget's signal is then no gesture) or after it closed.
template <typename Gesture>
void FormWindow::forward(Gesture gesture) {
    if (retired_ || renderer_.applying()) return;
    renderer_.forward(gesture);
}

}  // namespace qh
