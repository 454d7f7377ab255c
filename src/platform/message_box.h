#pragma once
#include <string>

namespace qh {

enum class MessageIcon { None, Information, Exclamation, Critical, Question };
enum class MessageButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MessageAnswer { OK, Cancel, Yes, No };

// Modal message boxes. Questions and notices carry the information icon and the title
// "Quillhollow" unless the caller says otherwise; failures carry the exclamation icon.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual MessageAnswer show(const std::string& text, const std::string& title, MessageButtons buttons,
                               MessageIcon icon) = 0;
};

}  // namespace qh
