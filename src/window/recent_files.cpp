#include "window/recent_files.h"

#include <algorithm>

namespace borvik {

namespace {
constexpr const char* kSection = "Recent Files";

std::string keyOf(int entry) {
    return "RecentFile" + std::to_string(entry);
}
}  // namespace

std::string RescentFile::stored(int entry) const {
    return store_.get(application_, kSection, keyOf(entry));
}

void RescentFile::store(int entry, const std::string& path) {
    store_.save(application_, kSection, keyOf(entry), path);
}

std::string RescentFile::pathOf(const std::string& caption) {
    return caption.size() < 3 ? "" : caption.substr(3);
}

bool RescentFile::isShown(int entry, const std::string& path) const {
    return static_cast<int>(captions_.size()) >= entry &&
           pathOf(captions_[static_cast<std::size_t>(entry - 1)]) == path;
}

void RescentFile::ShowRecentFiles() {
    if (stored(1).empty()) return;
    const auto all = store_.getAll(application_, kSection);
    captions_.clear();
    for (std::size_t i = 0; i < std::min<std::size_t>(all.size(), kEntries); ++i)
        captions_.push_back(std::to_string(i + 1) + ". " + all[i].second);
}

void RescentFile::moveAllDown() {
    for (int i = kEntries - 1; i >= 1; --i) {
        const std::string path = stored(i);
        if (!path.empty()) store(i + 1, path);
    }
}

void RescentFile::AddRecentOnSave(const std::string& path) {
    moveAllDown();
    store(1, path);
}

void RescentFile::AddRecentOnOpen(const std::string& path) {
    if (isShown(1, path)) {
        // stays where it is
    } else if (isShown(2, path)) {
        store(2, stored(1));
    } else if (isShown(3, path)) {
        store(3, stored(2));
        store(2, stored(1));
    } else {
        moveAllDown();
    }
    store(1, path);
}

}  // namespace borvik
