#include "platform/canvas.h"

#include "common/text.h"

namespace qh {

std::string FitToWidth(const Canvas& canvas, std::string text, int width, std::string_view ending) {
    if (canvas.textWidth(text) <= width) return text;
    const std::string tail(ending);
    while (!text.empty() && canvas.textWidth(text + tail) > width) text.erase(lastCharacterStart(text));
    return text + tail;
}

}  // namespace qh
