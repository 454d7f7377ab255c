#include "editors/editor_controls.h"

#include <algorithm>

namespace qh {

void FillReminderChoices(Control& combo) {
    combo.clearItems();
    combo.addItem("None");
    combo.addItem("1 Day");
    for (int days = 2; days <= 30; ++days) combo.addItem(std::to_string(days) + " Days");
}

void ShowEntry(Control& combo, const std::string& text) {
    const auto it = std::find(combo.items.begin(), combo.items.end(), text);
    combo.listIndex = it == combo.items.end() ? -1 : int(it - combo.items.begin());
    combo.text = text;
}

void ShowEntryAt(Control& combo, int listIndex) {
    combo.listIndex = listIndex;
    combo.text = combo.selectedText();
}

void ShowListedEntry(Control& combo, const std::string& text, int otherwise) {
    if (std::find(combo.items.begin(), combo.items.end(), text) != combo.items.end())
        ShowEntry(combo, text);
    else
        ShowEntryAt(combo, otherwise);
}

void ChooseEntry(Form& form, const std::string& key, const std::string& text) {
    Control& combo = form.c(key);
    if (std::find(combo.items.begin(), combo.items.end(), text) != combo.items.end()) {
        form.select(key, text);
        return;
    }
    ShowEntry(combo, text);
    form.fire(key, FormEvent::Click);
}

}  // namespace qh
