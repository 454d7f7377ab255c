#pragma once
// Small pieces the editor windows share: the advance-notice list, the grey and black of a
// date field that counts or not, and the one way each shows or chooses a combo's entry.
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
// Shows entry `listIndex` (-1: none) the same way.
void ShowEntryAt(Control& combo, int listIndex);
// Shows `text` when the list holds it, else entry `otherwise`: a stored value the list
// doesn't offer is not kept.
void ShowListedEntry(Control& combo, const std::string& text, int otherwise);

// Puts `text` into combo `key` as the user's choice would, as a shared file fills a
// window: its Click fires, so the window counts it as a change. A text the list doesn't
// hold is shown as the combo's text with nothing selected.
void ChooseEntry(Form& form, const std::string& key, const std::string& text);

}  // namespace qh
