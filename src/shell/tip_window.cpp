#include "shell/tip_window.h"

#include <array>

#include "platform/environment.h"
#include "shell/web_addresses.h"

namespace qh {
namespace {

const std::array<const char*, 31> kTips = {
    "Create a new Term and Class Schedule before adding assignments.",
    "Can't find the answer? Visit the Quillhollow website for support.",
    "Click on a day in the Calendar to change the current day.",
    "To edit an assignment, just click on the assignment in the List View.",
    "Get immediate answers to questions by selecting 'Help' from the 'Help' menu.",
    "Have a question? Click the blue question mark button. Try it right now!",
    "Click the Reminders, Homework, Tasks and Events buttons to switch between modes. The current mode is shown in "
    "the Status Bar.",
    "Click on the column names in the List View to sort by that column. Click again to reverse the sort order.",
    "Use the List Menu and Range Menu to control what appears in the List View.",
    "Visit the Quillhollow website to check for updates to the program.",
    "Choose 'Term' in the Range Menu to see all assignments for the current Term.",
    "The days remaining in the current term are shown in Homework Mode.",
    "You can advance the calendar one day at a time by holding down the buttons on either side of the Title Bar.",
    "Today's date has a black box around it in the Calendar.",
    "Drag the handle at the bottom right corner of the screen to change the size.",
    "In Homework Mode, you can see the number of assignments and total study time required for the selected day.",
    "Before you can check an assignment as Done, you need to add a Study Session showing how much time you studied "
    "for that assignment.",
    "Print out a copy of the screen with the 'Print Screen' command in the File Menu.",
    "You can have more than one Study Session for each assignment.",
    "Click on 'Study Sessions' to see how much time you have spent studying each day.",
    "Click the Reminder button to see all reminders for today.",
    "Add your grade for completed assignments in the Edit Assignment window.",
    "The GPA Menu shows your current GPA, or grade point average, for each class.",
    "A collection of Study Tips is available in the Help.",
    "See the Help Menu for details on how to calculate your grade point average with Quillhollow.",
    "Click the Share button in the Assignment window to share that assignment with another student.",
    "Use email or Instant Messenger to send assignment information to other students.",
    "You can export your Quillhollow assignments to another program for printing.",
    "Quillhollow has an online homework help feature. Click the 'Online Homework Help' button to see it.",
    "You can change the Start Day of the Week in the Calendar. Click on the Options Menu and try it.",
    "Do you know everything now? Uncheck the box below to turn off the Tip of the Day feature.",
};

}  // namespace

FrmTip::FrmTip(const Environment& environment) : Form("frmTip"), environment_(environment) {
    fixedSize = true;
    setOuterSize(6600, 3900);
    add(ControlKind::PictureBox, ImageFull.key(), "", 120, 120, 1020, 2640).picture = "TipFull";
    Control& lite = add(ControlKind::PictureBox, ImageLite.key(), "", 120, 120, 1020, 2640);
    lite.picture = "TipFull";
    // The tip stands on a white sheet beside the picture.
    Control& sheet = add(ControlKind::PictureBox, picSheet.key(), "", 1200, 120, 5220, 2640);
    sheet.backColor = kWhite;
    sheet.border = true;
    Control& title = add(ControlKind::Label, LabelTitle.key(), picSheet.key(), 120, 120, 4980, 420);
    title.caption = "Did you know...";
    title.fontName = "Verdana";
    title.fontSize = 12;
    title.bold = true;
    Control& tip = add(ControlKind::Label, LabelTip.key(), picSheet.key(), 120, 660, 4980, 1500);
    tip.fontName = "Verdana";
    tip.fontSize = 10;
    Control& video = add(ControlKind::Label, LabelVideo.key(), picSheet.key(), 120, 2220, 4980, 300);
    video.foreColor = 0xC00000;  // blue, as a link
    video.underline = true;
    for (Control* label : {&title, &tip, &video}) label->opaque = false;
    add(ControlKind::CheckBox, CheckBoxShowTips.key(), "", 120, 2940, 2700, 315).caption = "Show Tips at Startup";
    add(ControlKind::CommandButton, ButtonNextTip.key(), "", 3480, 2880, 1320, 375).caption = "Next Tip";
    add(ControlKind::CommandButton, ButtonClose.key(), "", 4980, 2880, 1320, 375).caption = "Close";

    // Escape closes the tip as Close does; Enter presses the focused button, else Close.
    defaultButton = cancelButton = ButtonClose.key();
    on(ButtonNextTip.key(), FormEvent::Click, [this](const EventArgs&) { ShowNextTip(); });
    on(CheckBoxShowTips.key(), FormEvent::Click,
       [this](const EventArgs&) { tempShowTipsAtStartup = CheckBoxShowTips->checked ? "Yes" : "No"; });
    on(ButtonClose.key(), FormEvent::Click, [this](const EventArgs&) { hide(); });
    bindControls();
}

void FrmTip::Form_Load() {
    caption = "Quillhollow Tip of the Day";
    ImageLite->visible = false;
    bringToFront(ImageFull.key());
}

void FrmTip::Form_Activate() {
    LabelVideo->caption = "Don't miss the Video Tutorials in the Help Menu!";
    CheckBoxShowTips->checked = true;
    tempShowTipsAtStartup = "Yes";
    TotalTips = 30;
    focusedControl = ButtonClose.key();
    ShowNextTip();
}

bool FrmTip::Form_QueryUnload(UnloadMode mode) {
    if (mode != UnloadMode::CloseBox) return true;
    hide();
    return false;
}

void FrmTip::ShowNextTip() {
    LabelTip->caption = TipText(tempCurrentTip, environment_);
    // A tip number past the last (a hand-edited Preferences.ini says 32767) starts the
    // tips again rather than overflowing.
    tempCurrentTip = tempCurrentTip >= TotalTips ? Int16(0) : toInt16(tempCurrentTip + 1);
}

std::string FrmTip::TipText(int number, const Environment& environment) {
    if (number >= 0 && number < int(kTips.size())) return kTips[std::size_t(number)];
    return std::string("Have any questions? Please ask! Just go to ") + HelpBookAddress(environment, kContactPage);
}

}  // namespace qh
