#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace borvik {

/// Per-user store of texts, addressed by application, section and key.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    /// @return the stored text, or `otherwise` where the key is absent
    [[nodiscard]] virtual std::string get(const std::string& application, const std::string& section,
                                          const std::string& key, const std::string& otherwise = {}) const = 0;
    virtual void save(const std::string& application, const std::string& section, const std::string& key,
                      const std::string& text) = 0;
    /// All keys of a section with their texts, in the order of the keys. Empty where the section is absent.
    [[nodiscard]] virtual std::vector<std::pair<std::string, std::string>> getAll(const std::string& application,
                                                                                  const std::string& section) const = 0;
};

/// Keeps the settings as long as it lives.
class SettingsInMemory : public SettingsStore {
public:
    [[nodiscard]] std::string get(const std::string& application, const std::string& section, const std::string& key,
                                  const std::string& otherwise = {}) const override {
        const auto keys = sections_.find({application, section});
        if (keys == sections_.end()) return otherwise;
        const auto found = keys->second.find(key);
        return found == keys->second.end() ? otherwise : found->second;
    }
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& text) override {
        sections_[{application, section}][key] = text;
    }
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> getAll(const std::string& application,
                                                                          const std::string& section) const override {
        const auto keys = sections_.find({application, section});
        if (keys == sections_.end()) return {};
        return {keys->second.begin(), keys->second.end()};
    }

private:
    std::map<std::pair<std::string, std::string>, std::map<std::string, std::string>> sections_;
};

}  // namespace borvik
