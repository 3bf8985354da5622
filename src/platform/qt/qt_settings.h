#pragma once

#include <QString>

#include "platform/settings_store.h"

namespace borvik {

/// Settings in the user's configuration folder, one text file an application.
class QtSettings : public SettingsStore {
public:
    [[nodiscard]] std::string get(const std::string& application, const std::string& section, const std::string& key,
                                  const std::string& otherwise = {}) const override;
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& text) override;
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> getAll(const std::string& application,
                                                                          const std::string& section) const override;
};

}  // namespace borvik
