#pragma once
// Small pieces the task and event windows share: the advance-notice list, the grey and
// black of a date field that counts or not, and showing a text in a list combo.
#include <string>

#include "common/color.h"
#include "platform/form.h"

namespace qh {

// A date field whose date doesn't count (no deadline, no end) shows it in this grey.
inline constexpr Color kInactiveDateColor = rgb(128, 128, 128);

// "None", "1 Day", then "2 Days" to "30 Days": the advance notice of tasks and events.
void FillReminderChoices(Control& combo);

// Shows `text` in a list combo without firing anything: the first entry equal to it is
// selected, or none when the list doesn't hold it (the text still shows, as the record
// holds it).
void ShowEntry(Control& combo, const std::string& text);

// Puts `text` into combo `key` as the user's choice would: its Click fires, so the
// window counts it as a change. A text the list doesn't hold is offered as text.
void ChooseEntry(Form& form, const std::string& key, const std::string& text);

}  // namespace qh
