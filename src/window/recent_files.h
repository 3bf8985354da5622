#pragma once

#include <string>
#include <vector>

#include "platform/settings_store.h"

namespace borvik {

/// Module RescentFile: the last four project paths in the per-user
/// settings, and the captions under which the File menu shows them.
class RescentFile {
public:
    static constexpr int kEntries = 4;

    RescentFile(SettingsStore& store, std::string application) : store_(store), application_(std::move(application)) {}

    /// Makes the captions anew from the store: "1. " and the path,
    /// the latest first. A store without entries leaves them.
    void ShowRecentFiles();
    /// Puts the path at the top and moves the others down; the oldest is lost. A path that is in the list already then
    /// stands there twice: the list shows what was saved, in order.
    void AddRecentOnSave(const std::string& path);
    /// Puts the path at the top; one of the first three entries as last shown is moved there from its place.
    void AddRecentOnOpen(const std::string& path);

    /// As last shown, from the top; empty while the store has no entries.
    [[nodiscard]] const std::vector<std::string>& captions() const noexcept { return captions_; }
    /// The path behind a caption.
    [[nodiscard]] static std::string pathOf(const std::string& caption);

private:
    [[nodiscard]] std::string stored(int entry) const;
    void store(int entry, const std::string& path);
    void moveAllDown();
    [[nodiscard]] bool isShown(int entry, const std::string& path) const;

    SettingsStore& store_;
    std::string application_;
    std::vector<std::string> captions_;
};

}  // namespace borvik
