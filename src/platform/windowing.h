#pragma once
#include <string>

namespace qh {

class Form;

// What the window models need of the toolkit beyond their own controls.
class Windowing {
public:
    virtual ~Windowing() = default;
    // Shows the window and returns at once.
    virtual void show(Form& form) = 0;
    // Shows the window modally, owned by `owner` (may be null), and returns when the model
    // has hidden it (form.visible false).
    virtual void showModal(Form& form, Form* owner) = 0;
    // Closes a window as its close box would: asks the model (Form_QueryUnload), and if it
    // agrees runs Form_Unload and takes the window off the screen for good.
    virtual void close(Form& form) = 0;
    // Lets the toolkit paint what changed and handle pending input once.
    virtual void processEvents() = 0;
    virtual int screenWidthTwips() const = 0;
    virtual int screenHeightTwips() const = 0;
    // The next control clicked shows its context help.
    virtual void enterWhatsThisMode() = 0;
    // Prints the image of the window on the chosen printer, `copies` full pages in one job,
    // each scaled to fit the page with its shape kept; throws FileFailure on failure.
    virtual void printWindowImage(Form& form, const std::string& printerName, int copies) = 0;
};

}  // namespace qh
