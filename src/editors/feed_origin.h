#pragma once
// "From <feed name>": an editor's line that tells a record came from a calendar feed the
// student subscribed to, so that a change made here may be undone by the feed's next
// refresh. Each editor lays the label out in its constructor; the record actions show it
// for the record being edited and clear it when the window hides.
#include <string>

#include "platform/form.h"

namespace qh {

inline constexpr const char* kFeedOriginLabel = "LabelFromFeed";

// Adds the label, hidden, right-aligned in the box given (twips). Before bindControls().
void AddFeedOriginLabel(Form& form, int left, int top, int width);
// Shows "From <feed name>", or hides the line for an empty name.
void ShowFeedOrigin(Form& form, const std::string& feedName);

}  // namespace qh
