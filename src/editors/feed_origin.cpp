#include "editors/feed_origin.h"

namespace qh {

void AddFeedOriginLabel(Form& form, int left, int top, int width) {
    Control& label = form.add(ControlKind::Label, kFeedOriginLabel, "", left, top, width, 255);
    label.alignment = Alignment::Right;
    label.backColor = kButtonFace;
    label.visible = false;
}

void ShowFeedOrigin(Form& form, const std::string& feedName) {
    Control& label = form.c(kFeedOriginLabel);
    label.caption = feedName.empty() ? std::string() : "From " + feedName;
    label.visible = !feedName.empty();
}

}  // namespace qh
