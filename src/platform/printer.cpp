#include "platform/printer.h"

namespace borvik {

DrawingSurface& PageRange::page() {
    if (inRange()) return printer_.page();
    return blank_;
}

void PageRange::newPage() {
    ++number_;
    if (!inRange()) return;
    if (printed_ > 0) printer_.newPage();
    ++printed_;
}

void PageRange::chapter(std::string_view title, double down) {
    chapters_.push_back({std::string(title), number_});
    if (inRange()) printer_.chapter(title, down);
}

}  // namespace borvik
