#pragma once
#include <string>

#include "platform/form.h"

namespace qh {

// What the window models need of the toolkit beyond their own controls.
// Both calls that show a window run Form::showing() (visible, then Form_Activate), every
// time.
class Windowing {
public:
    virtual ~Windowing() = default;
    // Shows the window and returns at once.
    virtual void show(Form& form) = 0;
    // Shows the window modally, owned by `owner` (may be null), and returns when the model
    // has hidden it (form.visible false).
    virtual void showModal(Form& form, Form* owner) = 0;
    // A request to close a window (Form::requestClose with its source): the close box, code
    // (File > Exit) or the program's end. If the model agrees, Form_Unload has run and the
    // window is off the screen for good; a model that refuses keeps its window, shown or
    // hidden as it left it.
    virtual void close(Form& form, UnloadMode mode) = 0;
    // Brings a shown window to the front of the desktop, out of the task bar when it was
    // minimised, and gives it the focus, as far as the desktop lets a program do so.
    virtual void raise(Form& form) = 0;
    // Lets the toolkit paint what changed and handle pending input once.
    virtual void processEvents() = 0;
    // Paints what changed now, taking no input: no gesture can reach a model in the middle
    // of its work.
    virtual void paintPending() = 0;
    virtual int screenWidthTwips() const = 0;
    virtual int screenHeightTwips() const = 0;
    // The part of the screens a window may take (without task bars), in twips; by default
    // the whole of the one screen.
    struct Area {
        int left = 0, top = 0, width = 0, height = 0;
    };
    virtual Area availableArea() const { return Area{0, 0, screenWidthTwips(), screenHeightTwips()}; }
    // The next control clicked shows its context help.
    virtual void enterWhatsThisMode() = 0;
    // Prints the image of the window on the chosen printer, `copies` full pages in one job,
    // each scaled to fit the page with its shape kept; throws FileFailure on failure.
    virtual void printWindowImage(Form& form, const std::string& printerName, int copies) = 0;
};

}  // namespace qh
